#include "pane/KTXLumarooPreferencePane.h"

#include "crashreporter/QBFeedbackProvider.h"

void KTXLumarooPreferencePane::orderFrontFeedbackWindow(QObject *sender)
{
    QBFeedbackProvider().orderFrontFeedbackWindow(sender);
}
