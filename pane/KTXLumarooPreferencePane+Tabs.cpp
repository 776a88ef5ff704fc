#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::tabViewDidSelectTabViewItem(QTabWidget *tabView, QWidget *tabViewItem) { }

void KTXLumarooPreferencePane::switchToTab(const NSNotification &notification) { }

void KTXLumarooPreferencePane::runTutorial(QObject *sender) { }
