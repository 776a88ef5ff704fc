#pragma once

#include <cstddef>

// What a crashing process does. Nothing here allocates, locks or uses the toolkit, so that it works whatever has
// broken; what it needs is made ready before.

/// What a log says of the program and where it goes; texts in UTF-8 that live as long as the process.
struct CrashLogFacts
{
    const char *program; ///< the executable's name
    const char *identifier;
    const char *version;
    const char *home; ///< where it begins a path, "~" stands for it
    const char
        *folder; ///< below the home folder, with a slash at its end; made at the first crash, with those above it
    bool hasFileForEach;
    unsigned mostSeconds; ///< a record that takes longer is given up
};

/// Installs the handlers of the signals that nobody handles yet. Called once.
void installCrashHandler(const CrashLogFacts &facts);

/// Adds a plug-in to what a log names. False where it is named already, or there is no room for it.
bool addPlugInToCrashLog(const char *identifier, size_t length);
/// Takes back what was added.
void removePlugInFromCrashLog(const char *identifier, size_t length);
