#pragma once

#include <QString>

class NSBundle;

// What crash reports and messages to the makers say of the machine and of what its user has set.

/// What people call the machine; "(null)" where it does not say.
QString reportedMachine();
/// As in "2.40", or "2x 2.40" where there is more than one core: in GHz.
QString reportedProcessorSpeed();
/// What is stored in the domain that a bundle's identifier names; "(null)" where there is no bundle or identifier.
QString reportedPreferences(const NSBundle *bundle);
