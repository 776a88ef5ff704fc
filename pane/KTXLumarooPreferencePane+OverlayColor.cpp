#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::updateColorInfo(QObject *sender) { }

void KTXLumarooPreferencePane::useSystemColor(QObject *sender) { }
