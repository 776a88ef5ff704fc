#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::changeSlider(QObject *sender) { }
