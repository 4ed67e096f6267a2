// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_PAGEINTERVALS_H
#define APP_PAGEINTERVALS_H

#include <QObject>

#include <vector>

class QDialog;
class QGridLayout;
class QLabel;
class QPushButton;
class QSlider;

/// The refresh interval of each page, in ticks of one second, and the dialog that changes it.
class PageIntervals : public QObject
{
    Q_OBJECT

public:
    /// Every page starts with an interval of 3. `parent` is also the parent of the dialog.
    PageIntervals(QWidget *parent, int pages);

    /// Interval of an existing page, in ticks.
    int interval(int page) const;
    /// Does not check the range; the dialog offers 1 to 5.
    void setInterval(int page, int ticks);
    /// True if the tick is a multiple of the page's interval, and on every tick if the interval is 0 or less,
    /// which only a settings file can contain.
    bool isDue(int page, int tick) const;

    /// Runs the dialog for one page and stores the chosen interval on OK.
    void exec(int page, const QString &pageName);

public Q_SLOTS:
    /// Shows the value and enables OK.
    void update(int value);

private:
    void addTexts(QGridLayout *grid, const QString &pageName);
    QSlider *addSlider(QGridLayout *grid, int value);
    void addButtons(QDialog *dialog);
    void showUnchanged(int value);

    QWidget *parentWidget;
    // The next three are valid only while the dialog is open.
    QLabel *valueLabel;
    QLabel *textLabel; ///< required, though nothing reads it
    QPushButton *okButton;
    std::vector<int> intervals;
};

#endif
