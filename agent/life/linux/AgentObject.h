#pragma once

#include "agent/actions/Actions.h"

#include <QDBusContext>
#include <QObject>

class Agent;

/// The running agent on the session bus, for its own command line and for one that starts beside it.
class AgentObject : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quorvane.LumarooAgent")

public:
    /// Call it before the name is taken: whoever sees the name must find the object.
    explicit AgentObject(Agent &agent);
    ~AgentObject() override;

Q_SIGNALS:
    // Without the windows' titles: everybody on the bus hears them.
    Q_SCRIPTABLE void SelectionBegan();
    Q_SCRIPTABLE void SelectionMoved();
    Q_SCRIPTABLE void SelectionAccepted();
    Q_SCRIPTABLE void SelectionCancelled();
    Q_SCRIPTABLE void SelectionRefused();
    Q_SCRIPTABLE void HotKeysChanged();
    Q_SCRIPTABLE void ActionKeyPressed(const QString &action);

public Q_SLOTS:
    // The interface on the bus.
    Q_SCRIPTABLE int Version() const;
    Q_SCRIPTABLE QString Settings() const;
    Q_SCRIPTABLE void ReadSettings();
    Q_SCRIPTABLE void Quit();
    Q_SCRIPTABLE void Move(const QString &direction);
    Q_SCRIPTABLE void Accept();
    Q_SCRIPTABLE void Cancel();
    Q_SCRIPTABLE QString TakeScreenshot();
    Q_SCRIPTABLE void CloseWindow();
    Q_SCRIPTABLE void ShowPreview();

private:
    void tell(const QString &failure) const;
    ActionTold answerLater(bool withPath = false) const;

    Agent &agent_;
};
