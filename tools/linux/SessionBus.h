#pragma once

/// Waits until the session bus has taken everything sent so far; false where there is no bus, or it does not answer.
bool waitForSessionBus();
