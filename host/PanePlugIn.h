#pragma once

#include "host/PaneFailure.h"

class NSBundle;
class NSPrincipalClass;

/// A bundle's code, loaded, or why it is not.
struct PanePlugIn
{
    NSBundle *bundle = nullptr;
    NSPrincipalClass *principalClass = nullptr;
    PaneFailureReport report;
};

/// Checks a bundle, loads its code and initialises its principal class, which happens once per process and plug-in.
/// Code once loaded stays loaded.
PanePlugIn loadPanePlugIn(const QString &bundlePath);
