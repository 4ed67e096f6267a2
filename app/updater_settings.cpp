// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/defaultgeometry.h"
#include "app/pageintervals.h"
#include "app/settingskeys.h"
#include "app/storedsettings.h"
#include "app/updater.h"
#include "integration/geometry.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"
#include "resources/timehisto.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

namespace {

QRect availableGeometry()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

/// A stored interval without a range check; the default if it is not a number.
int storedInterval(const QVariant &value)
{
    bool readable = false;
    const int ticks = value.toInt(&readable);
    return readable ? ticks : settings::defaultInterval;
}

} // namespace

void Updater::loadSettings()
{
    static const auto *filler = gtop_wrappers::ProcessFiller::instance();
    QSettings stored(usableSettingsFile(), QSettings::NativeFormat);
    const int neededHeight = heightForWholePage(&mainWindow, ui.generalScroll);
    zarnRestoreGeometry(&mainWindow, &stored, defaultGeometry(availableGeometry(), neededHeight), false);
    for (int page = 0; page < settings::pageCount; ++page) {
        const QString key = QLatin1String(settings::intervalKeys[page].readFrom);
        intervals->setInterval(page, storedInterval(stored.value(key, settings::defaultInterval)));
    }
    if (intervals->interval(NetworkPage) != settings::defaultInterval) {
        timeHisto->setInterval(intervals->interval(NetworkPage)); // the time axis depends on it
    }
    for (unsigned long i = 0; i < filler->size(); ++i) {
        const QString key = settings::columnKey(filler->name(i));
        procModel->setColumnVisible(i, stored.value(key, procModel->isColumnVisible(i)).toBool());
    }
    procModel->setComplete(stored.value(QLatin1String(settings::completeTree)).toBool());
    const int order = stored.value(QLatin1String(settings::sortOrder)).toInt();
    const int column = stored.value(QLatin1String(settings::sortColumn)).toInt();
    ui.treeView->sortByColumn(column,
                              order == Qt::DescendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder);
    const QByteArray splitter = stored.value(QLatin1String(settings::splitter)).toByteArray();
    if (isSplitterState(splitter)) {
        ui.splitter->restoreState(splitter);
    }
}

void Updater::saveSettings()
{
    static const auto *filler = gtop_wrappers::ProcessFiller::instance();
    // Writing the file needs descriptors, so even an incomplete reserve helps.
    const ReleasedDescriptors released(descriptors);
    // Inspected once more: the file may have been replaced since the start.
    QSettings stored(usableSettingsFile(), QSettings::NativeFormat);
    zarnSaveGeometry(&mainWindow, &stored, false);
    for (int page = 0; page < settings::pageCount; ++page) {
        stored.setValue(QLatin1String(settings::intervalKeys[page].writtenTo), intervals->interval(page));
    }
    for (unsigned long i = 0; i < filler->size(); ++i) {
        stored.setValue(settings::columnKey(filler->name(i)), procModel->isColumnVisible(i));
    }
    stored.setValue(QLatin1String(settings::sortColumn), procModel->sortColumn());
    stored.setValue(QLatin1String(settings::sortOrder), static_cast<int>(procModel->sortOrder()));
    if (procModel->isComplete()) {
        stored.setValue(QLatin1String(settings::completeTree), true);
    } else {
        stored.remove(QLatin1String(settings::completeTree));
    }
    stored.setValue(QLatin1String(settings::splitter), ui.splitter->saveState());
}
