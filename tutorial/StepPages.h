#pragma once

#include "tutorial/AgentReport.h"
#include "tutorial/GuidePage.h"
#include "tutorial/StepRun.h"

/// The page of a step, with the keys that are really set; the caller adds number and buttons.
GuidePage pageOfStep(const StepRun &run, const AgentReport &report);
/// The last page.
GuidePage pageOfEnd(const AgentReport &report);
