#pragma once

#include "agent/life/AgentArguments.h"
#include "platform/foundation/system/CommandFailure.h"

/// Does what was asked for beside running: prints, sets, quits ... Throws CommandFailure.
void perform(const AgentRequest &request);

/// Runs the agent of this session until it ends; the program's exit status. Throws CommandFailure when it cannot start.
/// One that runs already is no failure: a line on standard error says so.
int runAgent(bool foreground);
