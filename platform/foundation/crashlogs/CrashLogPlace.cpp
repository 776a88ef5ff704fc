#include "platform/foundation/crashlogs/CrashLogPlace.h"

CrashLogPlace crashLogPlace(quint32 major, quint32 minor)
{
    const bool hasFileForEach = major > 9 && minor > 4;
    const bool hasFolderOfDiagnostics = major > 9 && minor >= 6;
    return {hasFolderOfDiagnostics ? QStringLiteral("Library/Logs/DiagnosticReports/")
                                   : QStringLiteral("Library/Logs/CrashReporter/"),
        hasFileForEach ? CrashLogPlace::Form::FileForEach : CrashLogPlace::Form::OneFile};
}
