#include "updater/core/InstalledBundle.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "updater/core/Signature.h"
#include "updater/core/Versions.h"

#include <QFileInfo>

namespace {

QString textIn(const QVariantMap &info, const QString &key)
{
    const QVariant value = info.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

QString identifierIn(const QVariantMap &info)
{
    return textIn(info, QStringLiteral("CFBundleIdentifier"));
}

QString versionIn(const QVariantMap &info)
{
    return textIn(info, QStringLiteral("CFBundleVersion"));
}

UpdateProblem contents(const QString &detail)
{
    return {UpdateProblem::Kind::Contents, detail};
}

} // namespace

InstalledBundle::InstalledBundle(const QString &bundlePath) : path(QFileInfo(bundlePath).canonicalFilePath())
{
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(path);
    identifier = identifierIn(info);
    version = versionIn(info);
    feed = QUrl(textIn(info, QStringLiteral("SUFeedURL")), QUrl::StrictMode);
    publicKey = bytesOfBase64(textIn(info, QStringLiteral("SUPublicEDKey")).toLatin1(), publicKeySize);
}

UpdateProblem problemOfBundle(const QString &bundlePath, const ExpectedBundle &expected)
{
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundlePath);
    const QString version = versionIn(info);
    if (expected.identifier.isEmpty() || identifierIn(info) != expected.identifier)
        return contents(QStringLiteral("it holds \"%1\" instead of %2").arg(identifierIn(info), expected.identifier));
    if (version != expected.version)
        return contents(QStringLiteral("it holds version \"%1\" instead of %2").arg(version, expected.version));
    if (!isNewer(version, expected.newerThan))
        return contents(
            QStringLiteral("version %1 is not newer than %2, which is installed").arg(version, expected.newerThan));
    const int platformVersion = info.value(QStringLiteral("LMPlatformVersion")).toInt();
    if (platformVersion > expected.platformVersion)
        return contents(QStringLiteral("it needs version %1 of the platform, and this is %2")
                            .arg(platformVersion)
                            .arg(expected.platformVersion));
    const QString code = NSBundle::executablePathNamedBy(info, bundlePath);
    return QFileInfo(code).isFile() ? UpdateProblem{} : contents(QStringLiteral("it holds no code"));
}
