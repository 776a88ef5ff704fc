#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/OSStatus.h"
#include "platform/foundation/processes/ProcessSerialNumber.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QUrl>

inline constexpr OSStatus kLSUnknownErr = -10810; ///< the system could not start another process
inline constexpr OSStatus kLSApplicationNotFoundErr =
    -10814; ///< no bundle with an Info dictionary that names a program
inline constexpr OSStatus kLSNoExecutableErr = -10827; ///< the named program is missing or cannot be run

using LSLaunchFlags = quint32;
inline constexpr LSLaunchFlags kLSLaunchDontSwitch = 0x00000200;
inline constexpr LSLaunchFlags kLSLaunchAsync = 0x00010000;

/// A file or folder that existed when the reference was made.
struct FSRef
{
    QString path;
};

/// Makes a reference to a file or folder; `isDirectory` may be null. Returns fnfErr, and leaves the reference alone,
/// for an empty path and where there is nothing.
LM_FOUNDATION OSStatus FSPathMakeRef(const QString &path, FSRef *reference, bool *isDirectory = nullptr);

/// Makes a reference to what a local address names. Returns false, and leaves the reference alone, where the address is
/// no local one or there is nothing.
LM_FOUNDATION bool CFURLGetFSRef(const QUrl &url, FSRef *reference);

/// How an application is to be launched. Every launch is asynchronous here and brings nothing to the front, whatever
/// the flags say.
struct LSApplicationParameters
{
    qint64 version = 0; ///< always 0
    LSLaunchFlags flags = 0;
    const FSRef *application = nullptr; ///< the .app bundle
    QStringList argv = {}; ///< without the program's own name
    QHash<QString, QString> environment = {}; ///< in place of this process's variables of these names
};

/// Launches an application as a session of its own, which outlives this process, and stores its serial number.
///
/// Returns once its program runs: the program may still be starting up. Its standard streams are empty, and it gets no
/// open file of this process. On failure the serial number is left alone, and the result is one of the statuses above,
/// or paramErr for a version other than 0 or no application.
LM_FOUNDATION OSStatus LSOpenApplication(const LSApplicationParameters *parameters, ProcessSerialNumber *process);

/// Opens an address in the application that the user's desktop has for it; for a web page that is the browser.
///
/// Asks the desktop's own opener (`xdg-open`), and the portal of the session bus where there is none: 5 s at most.
/// Returns once that has taken the address; what becomes of it, nobody tells. Nothing of what this process's
/// environment holds for its own tasks reaches the application. Returns paramErr for an address without a scheme, and
/// kLSApplicationNotFoundErr, with one logged line, where nobody takes it.
LM_FOUNDATION OSStatus LSOpenCFURLRef(const QUrl &url);
