#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/OSStatus.h"
#include "platform/foundation/processes/ProcessSerialNumber.h"

#include <QString>
#include <QVariantMap>

// The running processes of this user, without the applications of other sessions. The low half of a serial number is
// the process's id.
//
// A session is what one session bus joins, for there its applications find each other. An application is of this one
// if it was started with the bus in its environment that this process has in its own now (DBUS_SESSION_BUS_ADDRESS, or
// without that the one in XDG_RUNTIME_DIR), or if it owns the name of its own identifier on our bus, however it was
// started.

inline constexpr quint32 kProcessDictionaryIncludeAllInformationMask = 0xFFFFFFFF;

// Entries of a process's dictionary.

inline const QString kCFBundleIdentifierKey = QStringLiteral("CFBundleIdentifier");
inline const QString kCFBundleExecutableKey = QStringLiteral("CFBundleExecutable");

/// Advances to the next process of this user and session.
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
