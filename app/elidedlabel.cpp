// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/elidedlabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace {

/// Tool tips take text that looks like HTML for HTML.
QString toolTipOf(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setElideMode(Qt::TextElideMode elideMode)
{
    mode = elideMode;
    update();
}

void ElidedLabel::setLeastCharacters(int leastCharacters)
{
    characters = leastCharacters;
    updateGeometry();
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * characters, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        updateToolTip();
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    updateToolTip();
    if (textInteractionFlags() & Qt::TextSelectableByMouse) {
        QLabel::paintEvent(event); // shows what is selected, of the whole text
        return;
    }
    // As QLabel does, the text is aligned by its own direction, not by the window's.
    const int direction = text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | direction, palette(),
                          isEnabled(), elidedText(), foregroundRole());
}

QString ElidedLabel::elidedText() const
{
    return fontMetrics().elidedText(text(), mode, contentsRect().width());
}

/// QLabel doesn't tell when its text changes, but always repaints then.
void ElidedLabel::updateToolTip()
{
    const QString wanted = elidedText() == text() ? QString() : toolTipOf(text());
    if (toolTip() != wanted) {
        setToolTip(wanted);
    }
}
