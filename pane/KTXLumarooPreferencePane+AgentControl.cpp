#include "pane/KTXLumarooPreferencePane.h"

void KTXLumarooPreferencePane::toggleAgent(QObject *sender) { }

void KTXLumarooPreferencePane::updateAgentVisuals() { }

void KTXLumarooPreferencePane::setAgentVisualsOn(const NSNotification &notification) { }

void KTXLumarooPreferencePane::setAgentVisualsOff() { }

void KTXLumarooPreferencePane::relaunch() { }

void KTXLumarooPreferencePane::stopAgent() { }

bool KTXLumarooPreferencePane::startAgent()
{
    return false;
}

ProcessSerialNumber KTXLumarooPreferencePane::agentPSN() const
{
    return kNoProcess;
}
