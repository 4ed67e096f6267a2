// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_ELIDEDLABEL_H
#define APP_ELIDEDLABEL_H

#include <QLabel>

/// A label of one line of plain text that is elided where it doesn't fit, instead of making its window wider.
/// The tool tip then shows the whole text. For labels without frame, margin and indent.
class ElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(int leastCharacters READ leastCharacters WRITE setLeastCharacters)

public:
    /// Elides at the end.
    explicit ElidedLabel(QWidget *parent = nullptr);

    Qt::TextElideMode elideMode() const { return mode; }
    void setElideMode(Qt::TextElideMode elideMode);

    /// Minimum width of the label, whatever its text, in characters of average width; 4 by default.
    int leastCharacters() const { return characters; }
    void setLeastCharacters(int leastCharacters);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString elidedText() const;
    void updateToolTip();

    Qt::TextElideMode mode = Qt::ElideRight;
    int characters = 4;
};

#endif
