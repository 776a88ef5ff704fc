#include "UpdatableBundle.h"
#include <QDir>
#include <QFileInfo>

#include "platform/foundation/propertylists/PropertyList.h"
#include "updater/core/linux/BundleExchange.h"

#include <QDir>
#include <QFile>

namespace {

const QString bundleName = QStringLiteral("Sample.prefPane");

QByteArray textOf(int version)
{
    // Larger than a block of a file system, so that it could be cut.
    return "version " + QByteArray::number(version) + QByteArray(10000, '.');
}

} // namespace

UpdatableBundle::UpdatableBundle(const QString &parent) : temporary_(parent + QStringLiteral("/update-XXXXXX"))
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(QStringLiteral("config"))));
    install(100);
}

UpdatableBundle::~UpdatableBundle()
{
    qputenv("XDG_CONFIG_HOME", previousSettings_);
}

QVariantMap UpdatableBundle::keyInInfo() const
{
    return {{QStringLiteral("SUPublicEDKey"), QString::fromLatin1(key.publicKey())}};
}

QList<TarEntry> UpdatableBundle::entriesOf(int version, const QVariantMap &more)
{
    QVariantMap info{{QStringLiteral("CFBundleIdentifier"), QStringLiteral("com.example.sample")},
        {QStringLiteral("CFBundleExecutable"), QStringLiteral("Sample")},
        {QStringLiteral("CFBundleVersion"), QString::number(version)},
        {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.%1").arg(version - 100)},
        {QStringLiteral("CFBundleName"), QStringLiteral("Sample")},
        {QStringLiteral("LMPlatformVersion"), qlonglong(LUMAROO_PLATFORM_VERSION)}};
    info.insert(more);
    return {{"Sample.prefPane/", TarEntry::Folder, {}, {}, 0755}, {"Sample.prefPane/Contents/", TarEntry::Folder},
        {"Sample.prefPane/Contents/Info.plist", TarEntry::File, writeXMLPropertyList(info)},
        {"Sample.prefPane/Contents/Linux/Sample", TarEntry::File, textOf(version), {}, 0755},
        {"Sample.prefPane/Contents/Resources/text", TarEntry::File, textOf(version)},
        {"Sample.prefPane/Contents/Resources/link", TarEntry::SymbolicLink, {}, "../Linux/Sample"}};
}

QByteArray UpdatableBundle::archiveOf(int version, const QVariantMap &more) const
{
    QVariantMap info = keyInInfo();
    info.insert(more);
    return tarFile(entriesOf(version, info));
}

void UpdatableBundle::install(int version) const
{
    for (const TarEntry &entry : entriesOf(version, keyInInfo())) {
        const QString place = folder() + u'/' + QString::fromUtf8(entry.path);
        if (entry.kind == TarEntry::Folder)
            QDir().mkpath(place);
        else if (entry.kind == TarEntry::SymbolicLink)
            QFile::link(QString::fromUtf8(entry.target), place);
        else
            write(place, entry.content);
    }
}

ExpectedUpdate UpdatableBundle::expected(const QByteArray &archive, int version) const
{
    return {QString::number(version), QStringLiteral("1.%1").arg(version - 100), key.signatureOf(archive),
        archive.size(), LUMAROO_PLATFORM_VERSION};
}

void UpdatableBundle::prepare(int version)
{
    const QByteArray archive = archiveOf(version);
    const UpdateProblem problem = prepare(archive, expected(archive, version));
    ASSERT_TRUE(problem.isNone()) << problem.detail.toStdString();
}

UpdateProblem UpdatableBundle::prepare(const QByteArray &archive, const ExpectedUpdate &update)
{
    const FolderLock lock(folder());
    EXPECT_TRUE(bool(lock));
    EXPECT_TRUE(beginWaitingUpdate(places()).isNone());
    write(places().archive(), archive);
    return completeWaitingUpdate(places(), update);
}

int UpdatableBundle::wholeVersionAt(const QString &bundlePath)
{
    const QVariantMap info =
        readPropertyList(contentOf(bundlePath + QStringLiteral("/Contents/Info.plist"))).value.toMap();
    const int version = info.value(QStringLiteral("CFBundleVersion")).toInt();
    for (const char *file : {"/Contents/Linux/Sample", "/Contents/Resources/text", "/Contents/Resources/link"}) {
        if (contentOf(bundlePath + QLatin1StringView(file)) != textOf(version))
            return 0;
    }
    return version;
}

QStringList UpdatableBundle::beside() const
{
    QStringList names = QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(bundleName);
    return names;
}

void UpdatableBundle::expectOldBundleAlone() const
{
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_EQ(beside(), QStringList());
}

void UpdatableBundle::write(const QString &absolutePath, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(absolutePath).path());
    QFile file(absolutePath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << absolutePath.toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray UpdatableBundle::contentOf(const QString &absolutePath)
{
    QFile file(absolutePath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
