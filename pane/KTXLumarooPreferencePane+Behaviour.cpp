#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::enableChecked(QObject *sender) { }

void KTXLumarooPreferencePane::updatePersistentState(QObject *sender) { }
