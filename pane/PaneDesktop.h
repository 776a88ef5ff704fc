#pragma once

#include "pane/AgentKeysText.h"
#include "pane/AgentPresence.h"
#include "pane/AgentWatch.h"
#include "pane/LoginEntryWatch.h"
#include "platform/appkit/controls/WindowsPicture.h"

#include <QPointer>

class QWidget;

/// What the pane shows of this desktop: the agent's keys as they really are, and whether the agent starts at login. It
/// finds its controls in the pane's view by their names, and keeps them as things are.
class PaneDesktop : public QObject
{
    Q_OBJECT

public:
    PaneDesktop(QWidget *view, const NSBundle *bundle, QObject *parent);

    /// What the button offers; 0 for nothing.
    quint32 freeModifiers() const { return keys_.freeModifiers; }
    /// Has the desktop start the agent of the bundle at login, or not. False where that failed, which is logged; the
    /// check box shows what holds then.
    bool setStartsAtLogin(bool on);
    /// What the agent says of its keys.
    const AgentWatch &agent() const { return agent_; }
    /// Whether the agent is there, to be told of its start.
    AgentPresence &presence() { return presence_; }

private:
    void showKeys(const AgentKeys &keys);
    void showMarkers(const QString &reason);
    void showStartAtLogin();
    void showPress(const AgentKeysText &text);
    void showPresence();
    void followFrameColor();
    QString localized(const char *text) const;
    bool eventFilter(QObject *object, QEvent *event) override;
    QWidget *control(const char *name) const;

    QPointer<QWidget> view_;
    QPointer<QWidget> well_;
    QPointer<WindowsPicture> picture_;
    const NSBundle *bundle_;
    AgentKeys keys_;
    QString modifierHint_; ///< what is said of the modifiers where nothing is wrong with them
    AgentWatch agent_;
    AgentPresence presence_;
    LoginEntryWatch loginEntry_;
};
