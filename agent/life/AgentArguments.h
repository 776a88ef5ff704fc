#pragma once

#include "platform/foundation/propertylists/ValueArguments.h"

/// What the command line asks of the program.
struct AgentRequest
{
    enum class Action {
        Run,
        PrintSettings,
        PrintWindows,
        Set,
        StartAtLogin,
        Quit,
        Move,
        Accept,
        Cancel,
        TakeScreenshot,
        CloseWindow,
        ShowPreview,
        Help,
        Version
    };
    Action action = Action::Run;
    bool foreground = false; ///< say on standard output what happens
    QString key; ///< what to set
    QVariant value;
    bool startAtLogin = false;
    QString direction; ///< where to move
};

/// Throws UsageError.
AgentRequest parseAgentArguments(QStringList arguments);

extern const char *const agentHelp;
