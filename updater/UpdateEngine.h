#pragma once

#include "updater/Export.h"

#include <QString>
#include <memory>

class NSBundle;
class QUrl;

/// What checks for a new version and shows the windows about it. One for each bundle; main thread only.
///
/// It is a library of its own, since what it links (the toolkit's network, signatures, archives) would cost every start
/// of the settings time and memory, and most starts check for nothing.
class LM_UPDATER UpdateEngine
{
public:
    virtual ~UpdateEngine();

    /// Shows at once that a check runs, and then what came of it. Where a window of this engine is open already, that
    /// comes to the front instead.
    virtual void checkForUser(const QUrl &feed) = 0;
    /// Shows a window only where there is a new version, and leaves the focus to whoever has it. Does nothing while
    /// anything else of this engine is under way.
    virtual void checkBySchedule(const QUrl &feed) = 0;
    /// Ends a check by schedule that is under way; what it has found already stays on screen.
    virtual void stopScheduledCheck() = 0;
};

// What the library exports. The bundle's version is part of its file name: a bundle that was exchanged while its code
// runs here holds a library of another version, which must not be loaded by older code.

inline constexpr char updateEngineFunction[] = "lumarooUpdateEngine";
extern "C" {
/// A new engine, which the caller owns.
using UpdateEngineFunction = UpdateEngine *(*)(NSBundle *bundle);
}

/// Loads the library at the first call. Null, with the reason for the log, when it cannot be loaded.
std::unique_ptr<UpdateEngine> makeUpdateEngine(NSBundle *bundle, QString *error);
