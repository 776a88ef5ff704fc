#pragma once

#include "PaneOnRealStore.h"

/// A pane whose bundle may hold an agent that really runs, but says and hears nothing; what of it runs is killed with
/// the object.
class PaneWithAgent : public PaneOnRealStore
{
protected:
    ~PaneWithAgent() override;

    void putAgent();
    QString agentBundle() const { return bundle().resourcePath() + QStringLiteral("/LumarooAgent.app"); }
    QString agentProgram() const { return agentBundle() + QStringLiteral("/Contents/Linux/LumarooAgent"); }
    /// The processes that count as the agent.
    static QList<pid_t> agents();

    /// The pane with these operations of the agent's control really carried out; what came before is forgotten.
    RecordingPane &paneThatCarriesOut(const QStringList &operations);
    /// The same with all but restarting the settings.
    RecordingPane &controllingPane();
    int switchState() { return state(control("toggleStateButton")); }
};
