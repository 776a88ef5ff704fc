#pragma once

/// Starts the tutorial that comes with the agent; one that runs already is brought to the front by that.
///
/// Returns once its program runs. False, with one logged line, where it is missing or cannot be run.
bool startTutorial();
