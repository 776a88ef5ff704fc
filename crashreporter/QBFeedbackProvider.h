#pragma once

class QObject;

/// Opens a window with which the user writes to the makers. Each call opens another; the windows keep themselves alive.
class QBFeedbackProvider
{
public:
    void orderFrontFeedbackWindow(QObject *sender);
    void orderFrontBugReportWindow(QObject *sender);
};
