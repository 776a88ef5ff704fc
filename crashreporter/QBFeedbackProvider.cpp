#include "crashreporter/QBFeedbackProvider.h"

#include "crashreporter/QBCrashReporter.h"

void QBFeedbackProvider::orderFrontFeedbackWindow(QObject *)
{
    QBCrashReporter::initInFeedbackMode();
}

void QBFeedbackProvider::orderFrontBugReportWindow(QObject *)
{
    QBCrashReporter::initInFeedbackMode();
}
