#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::setUpUpdater() { }

void KTXLumarooPreferencePane::checkForUpdates(QObject *sender) { }

void KTXLumarooPreferencePane::autoUpdateChecked(QObject *sender) { }

void KTXLumarooPreferencePane::hideBetaNotes(QObject *sender) { }

SUUpdater *KTXLumarooPreferencePane::updater() const
{
    return nullptr;
}
