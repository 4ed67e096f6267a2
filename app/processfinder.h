// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_PROCESSFINDER_H
#define APP_PROCESSFINDER_H

#include "process/listplace.h"

#include <QObject>

#include <optional>

class DescriptorReserve;
class FilterLine;
class ListNote;
class ProxyProcModel;
class QInputMethodEvent;
class QInputMethodQueryEvent;
class QKeyEvent;
class QTimer;
class QTreeView;

/// Finds processes: opens the line below the process list when the user types in the list, filters the list
/// by the line's text, and moves the focus between the two.
class ProcessFinder : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the list; the line is added to the layout that contains the list. `model` is the
    /// list's; `descriptors` is the reserve to read with. Neither is owned.
    ProcessFinder(QTreeView *list, ProxyProcModel *model, DescriptorReserve &descriptors);

public Q_SLOTS:
    void open();
    /// Empties the line too.
    void close();

Q_SIGNALS:
    /// After the list was filtered anew: the selected process may be another or none.
    void filterChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void applyFilter();
    void showState();
    void readMore();

private:
    bool isOpen() const;
    void type(const QString &text);
    void bringIntoView();
    void selectFirstMatch();
    bool handleListKey(const QKeyEvent &key);
    bool handleLineKey(const QKeyEvent &key);
    bool handleComposed(QInputMethodEvent *event);
    bool answerForLine(QInputMethodQueryEvent *query);

    QTreeView *list;
    ProxyProcModel *model;
    DescriptorReserve &reserve;
    FilterLine *line;
    ListNote *note;
    QTimer *reading;
    std::optional<ListPlace> unfilteredPlace; ///< before the list was filtered
};

#endif
