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

/// How often each page is refreshed, in ticks of one second, and the dialog in which the user changes it.
class PageIntervals : public QObject
{
    Q_OBJECT

public:
    /// Every page starts with an interval of 3. The parent widget is also the parent of the dialog.
    PageIntervals(QWidget *parent, int pages);

    /// Interval of a page that exists, in ticks.
    int interval(int page) const;
    /// Stored as given, without a check of its range: the dialog offers 1 to 5.
    void setInterval(int page, int ticks);
    /// True when the tick is a multiple of the page's interval. An interval of 0 or less, which only a
    /// settings file can bring, is due on every tick.
    bool isDue(int page, int tick) const;

    /// Lets the user choose the interval of a page; stores it on OK.
    void exec(int page, const QString &pageName);

public Q_SLOTS:
    /// Shows the value and lets it be accepted.
    void update(int value);

private:
    void addTexts(QGridLayout *grid, const QString &pageName);
    QSlider *addSlider(QGridLayout *grid, int value);
    void addButtons(QDialog *dialog);
    void showUnchanged(int value);

    QWidget *parentWidget;
    // Valid only while the dialog is open.
    QLabel *valueLabel;
    QLabel *textLabel;
    QPushButton *okButton;
    std::vector<int> intervals;
};

#endif
