// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/filterline.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

constexpr int longestText = 256;

bool isControlK(const QKeyEvent &key)
{
    return key.key() == Qt::Key_K && key.modifiers() == Qt::ControlModifier;
}

/// A line that keeps Ctrl+K too. QLineEdit deletes the rest of the text with it, unless a shortcut takes it:
/// here that would ask whether to kill the selected process.
class TextField : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ShortcutOverride && isControlK(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        return QLineEdit::event(event);
    }
};

} // namespace

FilterLine::FilterLine(QWidget *parent) : QWidget(parent), edit(new TextField(this)), count(new QLabel(this))
{
    setObjectName(QStringLiteral("filterLine"));
    edit->setObjectName(QStringLiteral("filterText"));
    edit->setPlaceholderText(tr("Name, command line, user or PID"));
    edit->setAccessibleName(tr("Find process"));
    edit->setMaxLength(longestText);
    count->setObjectName(QStringLiteral("filterCount"));
    auto *close = new QToolButton(this);
    close->setObjectName(QStringLiteral("filterClose"));
    close->setAutoRaise(true);
    close->setText(QString(QChar(0xd7))); // a cross in the size of the font and the color of the text
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Close"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(close);
    layout->addWidget(edit, 1);
    layout->addWidget(count);
    setFocusProxy(edit);
    setTabOrder(edit, close);
    connect(edit, SIGNAL(textChanged(QString)), this, SIGNAL(textChanged(QString)));
    connect(close, SIGNAL(clicked()), this, SIGNAL(closeRequested()));
}

void FilterLine::type(const QString &text)
{
    edit->end(false); // also deselects, so that nothing is replaced
    edit->insert(text);
}

void FilterLine::showCount(int found, int all, bool isComplete)
{
    const QString text = tr("%1 of %2").arg(found).arg(all);
    count->setText(isComplete ? text : text + QChar(0x2026)); // an ellipsis
    edit->setAccessibleDescription(count->text());
}
