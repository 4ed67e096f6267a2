// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helpmenu.h"

#include "integration/dpi.h"
#include "integration/zarninit.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QString paragraph(const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

QString aboutText()
{
    const QString version = zarnVersion();
    return QStringLiteral("<h3>%1</h3>").arg(QGuiApplication::applicationDisplayName().toHtmlEscaped()) +
           paragraph(version.isEmpty() ? QString() : ZarnHelpMenu::tr("Version %1").arg(version)) +
           paragraph(zarnDescription()) +
           paragraph(ZarnHelpMenu::tr("This is free software under the GNU General Public License, version 3 "
                                      "or later (GPL-3.0-or-later). It comes without any warranty."));
}

QPixmap aboutIcon(const QWidget *window)
{
    QIcon icon = window ? window->windowIcon() : QApplication::windowIcon();
    if (icon.isNull()) {
        icon = QIcon(QStringLiteral(":/images/diobin_logo.png"));
    }
    const int side = int(zarnDpiScaled(64));
    return icon.pixmap(side, side);
}

} // namespace

ZarnHelpMenu::ZarnHelpMenu(QWidget *parent) : QMenu(tr("&Help"), parent)
{
    addAction(QIcon::fromTheme(QStringLiteral("help-about")), tr("About"), this, SLOT(showAbout()));
    addAction(tr("About Qt"), qApp, SLOT(aboutQt()));
}

void ZarnHelpMenu::showAbout()
{
    QWidget *window = parentWidget() ? parentWidget()->window() : nullptr;
    QMessageBox box(window);
    box.setWindowTitle(tr("About %1").arg(QGuiApplication::applicationDisplayName()));
    box.setTextFormat(Qt::RichText);
    box.setText(aboutText());
    box.setIconPixmap(aboutIcon(window));
    box.exec();
}
