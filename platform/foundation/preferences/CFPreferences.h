#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <QVariant>

// The settings of one user, kept in named domains: $XDG_CONFIG_HOME/lumaroo/<domain>.plist. Main thread only.

/// The value of a key, or no value. Reads the file as it is now, under this process's own writes that are not flushed
/// yet.
LM_FOUNDATION QVariant CFPreferencesCopyAppValue(const QString &key, const QString &applicationID);

/// The value of a key as a boolean. Only a boolean counts: for anything else, or nothing, the answer is false and
/// `*keyExistsAndHasValidFormat` false.
LM_FOUNDATION bool CFPreferencesGetAppBooleanValue(
    const QString &key, const QString &applicationID, bool *keyExistsAndHasValidFormat = nullptr);

/// The value of a key as an integer. Only a number within 32 bits counts: for anything else, or nothing, the answer is
/// 0 and the flag false.
LM_FOUNDATION int CFPreferencesGetAppIntegerValue(
    const QString &key, const QString &applicationID, bool *keyExistsAndHasValidFormat = nullptr);

/// Sets a key; no value removes it. Pending, and seen by this process's reads at once, until
/// CFPreferencesAppSynchronize. What is set after a reading of a file that could not be read (no permission, a failing
/// disk) is stored only where the file turns out not to hold the key; a line tells which keys stayed as they were.
LM_FOUNDATION void CFPreferencesSetAppValue(const QString &key, const QVariant &value, const QString &applicationID);

/// Drops this process's pending write of a key: what is stored holds again. Called where what could not be stored is
/// not to be stored later on either.
LM_FOUNDATION void LMPreferencesTakeBackAppValue(const QString &key, const QString &applicationID);

/// Flushes this process's pending writes of a domain and picks up what others wrote.
///
/// Called after every change the other side must see, before it is announced. Takes a kernel lock (waits 2 s at most)
/// and one fsync; where nothing changed the file is not touched. Returns false when the file could not be written: it
/// then holds its old content whole, and what is pending is tried again by the next call.
LM_FOUNDATION bool CFPreferencesAppSynchronize(const QString &applicationID);
