#pragma once

#include <QString>
#include <span>

/// A part of model identifiers, and what people call the machines that have it.
struct MachineName
{
    const char *key;
    const char *name;
};

/// All that are known, ascending by key.
std::span<const MachineName> machineNames();

/// What people call the machine with a model identifier.
///
/// Of the keys that stand anywhere in the identifier the last one in order counts, but one that is all of it is never
/// overridden. The name of a whole family (a key without a comma) has the key behind it in parentheses; a machine that
/// is not known is "Unknown" with the identifier.
QString machineNameOf(const QString &identifier);
