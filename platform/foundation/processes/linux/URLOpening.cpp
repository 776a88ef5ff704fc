#include "platform/foundation/processes/ApplicationIdentifier.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/processes/NSTask.h"
#include "platform/foundation/processes/linux/ProgramStart.h"
#include "platform/foundation/system/NSLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QStandardPaths>
#include <cstring>

namespace {

constexpr int longestAnswer = 5000;

/// Each answers with what went wrong, or nothing.
QString openByProgram(const QByteArray &address)
{
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return QStringLiteral("no xdg-open");
    ProgramStart start{QFile::encodeName(opener), {address}, {}};
    start.hiddenVariables = {hostExecutableVariable, applicationIdentifierVariable};
    const int error = startProgram(start).error;
    return error == 0 ? QString() : opener + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(error));
}

QString openByPortal(const QByteArray &address)
{
    QDBusMessage request = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"), QStringLiteral("org.freedesktop.portal.OpenURI"),
        QStringLiteral("OpenURI"));
    const QString noWindow;
    request << noWindow << QString::fromLatin1(address) << QVariantMap();
    return QDBusConnection::sessionBus().call(request, QDBus::Block, longestAnswer).errorMessage();
}

} // namespace

OSStatus LSOpenCFURLRef(const QUrl &url)
{
    if (!url.isValid() || url.scheme().isEmpty())
        return paramErr;
    const QByteArray address = url.toEncoded();
    const QString programFailure = openByProgram(address);
    if (programFailure.isEmpty())
        return noErr;
    const QString portalFailure = openByPortal(address);
    if (portalFailure.isEmpty())
        return noErr;
    NSLog(QStringLiteral("lumaroo: open: %1 is not opened: %2; portal: %3")
              .arg(QString::fromLatin1(address), programFailure, portalFailure));
    return kLSApplicationNotFoundErr;
}
