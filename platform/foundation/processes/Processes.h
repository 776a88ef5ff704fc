#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/OSStatus.h"
#include "platform/foundation/processes/ProcessSerialNumber.h"

#include <QString>
#include <QVariantMap>

// The running processes of this user. The low half of a serial number is the process's id.

inline constexpr quint32 kProcessDictionaryIncludeAllInformationMask = 0xFFFFFFFF;

// Entries of a process's dictionary.

inline const QString kCFBundleIdentifierKey = QStringLiteral("CFBundleIdentifier");
inline const QString kCFBundleExecutableKey = QStringLiteral("CFBundleExecutable");

/// Advances to the next process of this user.
///
/// Starting from no process takes the list as it is at that moment; processes that start later are not in it. Returns
/// procNotFound at the list's end, and for a serial number that is not in the list, and leaves no process in the
/// argument.
LM_FOUNDATION OSStatus GetNextProcess(ProcessSerialNumber *process);

/// Describes a process: the full path of its executable and, for an application (the program of an .app bundle), the
/// identifier of that bundle as it stands on disk.
///
/// The executable's file may have been replaced or removed since the process started: what stands at its place counts,
/// and where no bundle stands there any more, the identifier that the application was launched with. An entry that is
/// not to be had is missing; a process that is gone, or another user's, has none. Every mask asks for everything.
LM_FOUNDATION QVariantMap ProcessInformationCopyDictionary(
    const ProcessSerialNumber &process, quint32 informationToReturn);
