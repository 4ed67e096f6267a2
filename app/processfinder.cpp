// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/processfinder.h"

#include "app/descriptorreserve.h"
#include "app/filterline.h"
#include "app/finderkeys.h"
#include "app/listnote.h"
#include "process/proxyprocmodel.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

namespace {

/// How long the program may be deaf while command lines are read, in milliseconds.
constexpr int readingSlice = 10;

} // namespace

ProcessFinder::ProcessFinder(QTreeView *view, ProxyProcModel *proxy, DescriptorReserve &descriptors)
    : QObject(view), list(view), model(proxy), reserve(descriptors),
      line(new FilterLine(view->parentWidget())), note(new ListNote(tr("No process found"), view)),
      reading(new QTimer(this))
{
    line->hide();
    list->parentWidget()->layout()->addWidget(line);
    QWidget::setTabOrder(list, line->field());
    reading->setSingleShot(true);
    list->installEventFilter(this);
    line->field()->installEventFilter(this);
    connect(line, SIGNAL(textChanged(QString)), this, SLOT(applyFilter()));
    connect(line, SIGNAL(closeRequested()), this, SLOT(close()));
    connect(model, SIGNAL(filtered()), this, SLOT(showState()));
    connect(reading, SIGNAL(timeout()), this, SLOT(readMore()));
}

bool ProcessFinder::isOpen() const
{
    return !line->isHidden();
}

void ProcessFinder::open()
{
    if (!isOpen()) {
        const ListPlace place(*model, *list);
        line->show();
        list->parentWidget()->layout()->activate(); // makes the list lower
        place.restoreView(*model, *list);
        showState();
    }
    line->field()->setFocus();
    line->field()->selectAll();
}

void ProcessFinder::close()
{
    line->field()->clear();
    line->hide();
    note->hide();
    model->closeFilter();
    list->setFocus();
}

void ProcessFinder::type(const QString &text)
{
    open();
    line->type(text);
}

void ProcessFinder::applyFilter()
{
    const ListPlace place(*model, *list);
    if (!model->isFiltered()) {
        unfilteredPlace = place;
    }
    model->setFilter(line->field()->text());
    place.restoreSelection(*model, *list);
    bringIntoView();
    readCellsInView(*list);
    Q_EMIT filterChanged();
}

/// The selected process or, without one, the first that was found; of the unfiltered list what was in view
/// before it was filtered.
void ProcessFinder::bringIntoView()
{
    const int horizontal = list->horizontalScrollBar()->value();
    if (model->isFiltered()) {
        list->scrollToTop();
    } else if (unfilteredPlace) {
        unfilteredPlace->restoreView(*model, *list);
    }
    const QModelIndex selected = selectedRow(*list);
    if (selected.isValid()) {
        list->scrollTo(selected);
    }
    list->horizontalScrollBar()->setValue(horizontal);
}

void ProcessFinder::showState()
{
    if (!isOpen()) {
        return;
    }
    const bool isComplete = model->isFilterComplete();
    line->showCount(model->matchCount(), model->unfilteredCount(), isComplete);
    note->setVisible(model->isFiltered() && isComplete && model->rowCount() == 0);
    if (!isComplete) {
        reading->start(0);
    }
}

void ProcessFinder::readMore()
{
    const ReleasedDescriptors released(reserve);
    if (released.enough()) { // otherwise the next refresh starts it again
        model->readForFilter(readingSlice);
    }
}

/// Skips what is shown only because of its descendants.
void ProcessFinder::selectFirstMatch()
{
    QModelIndex row = model->index(0, 0);
    while (row.data(ProxyProcModel::AncestorOnlyRole).toBool() && list->indexBelow(row).isValid()) {
        row = list->indexBelow(row);
    }
    list->setCurrentIndex(row);
}

bool ProcessFinder::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto &key = *static_cast<QKeyEvent *>(event);
        return watched == list ? handleListKey(key) : handleLineKey(key);
    }
    case QEvent::InputMethod:
        return watched == list && handleComposed(static_cast<QInputMethodEvent *>(event));
    case QEvent::InputMethodQuery:
        return watched == list && answerForLine(static_cast<QInputMethodQueryEvent *>(event));
    default:
        return false;
    }
}

bool ProcessFinder::handleListKey(const QKeyEvent &key)
{
    const ListKey meaning = listKey(key);
    const bool needsLine = meaning == ListKey::Close || meaning == ListKey::Erase;
    if (meaning == ListKey::None || (needsLine && !isOpen())) {
        return false;
    }
    if (meaning == ListKey::Close) {
        close();
    } else if (meaning == ListKey::Open) {
        open();
    } else if (meaning == ListKey::Type) {
        type(key.text());
    } else {
        type(QString());
        line->field()->backspace();
    }
    return true;
}

bool ProcessFinder::handleLineKey(const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Escape) {
        close();
        return true;
    }
    if (!goesToList(key)) {
        return false;
    }
    if (model->rowCount() == 0) {
        return true; // nothing to go to
    }
    const bool hasSelection = selectedRow(*list).isValid();
    if (!hasSelection) {
        selectFirstMatch();
    }
    list->setFocus();
    if (hasSelection && !isEnter(key)) {
        QKeyEvent forList(key.type(), key.key(), key.modifiers(), key.text());
        QCoreApplication::sendEvent(list, &forList);
    }
    list->scrollTo(list->currentIndex());
    return true;
}

/// Text from an input method or a dead key begins in the list and goes on in the line.
bool ProcessFinder::handleComposed(QInputMethodEvent *event)
{
    const bool isBlank = event->commitString().trimmed().isEmpty() && event->preeditString().isEmpty();
    if (isBlank) {
        return false;
    }
    type(QString());
    QCoreApplication::sendEvent(line->field(), event);
    return true;
}

/// Without this, input methods and dead keys would be off in the list, since nothing can be edited there.
bool ProcessFinder::answerForLine(QInputMethodQueryEvent *query)
{
    QCoreApplication::sendEvent(line->field(), query);
    query->accept();
    return true;
}
