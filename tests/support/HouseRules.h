#pragma once

#include "SourceTree.h"

#include <iosfwd>

// How the house is built: which folder may include which, what a room keeps to itself, how long things get.
// docs/ARCHITECTURE.md tells it in words.

/// A place that breaks a rule.
struct Breach
{
    QString file;
    int line;
    QString rule;

    bool operator==(const Breach &) const = default;
};
std::ostream &operator<<(std::ostream &stream, const Breach &breach);

/// Includes that go against the direction of the layers.
QList<Breach> includesAgainstTheLayers(const SourceTree &tree);
/// Includes of what another room keeps to itself: its linux/, x11/ and internal/ folders. Tests look everywhere.
QList<Breach> includesOfOthersInternals(const SourceTree &tree);
/// Includes of the libraries for signatures and archives anywhere but in the updater's core.
QList<Breach> librariesOutOfTheirPlace(const SourceTree &tree);
/// The include that closes a circle between rooms of one library.
QList<Breach> circlesBetweenRooms(const SourceTree &tree);
/// Headers on top of a library or of one of its rooms that are no contract: they export nothing, nobody outside
/// includes them, and no contract does.
QList<Breach> headersThatExportNothing(const SourceTree &tree);
/// Sources of more than 300 lines, headers of more than 150.
QList<Breach> filesThatAreTooLong(const SourceTree &tree);
/// Functions with a body of more than 40 lines that is no table.
QList<Breach> functionsThatAreTooLong(const SourceTree &tree);
