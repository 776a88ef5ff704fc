// Writes the feed of a folder with archives of versions.

#include "AppcastFolder.h"
#include "AppcastWriter.h"
#include "updater/core/DownloadAddress.h"
#include "updater/core/Versions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <cstdio>

namespace {

/// "101=beta" and "101" as a version and what is said of it.
QMap<QString, QString> saidOfVersions(const QStringList &values)
{
    QMap<QString, QString> said;
    for (const QString &value : values) {
        const QString version = value.section(u'=', 0, 0);
        if (!isBundleVersion(version))
            throw MakerFailure(QStringLiteral("\"%1\" is no version").arg(version));
        said[version] = value.section(u'=', 1);
    }
    return said;
}

QUrl folderAddress(const QString &text)
{
    const QUrl address(text.endsWith(u'/') ? text : text + u'/', QUrl::StrictMode);
    if (!isAllowedFeedAddress(address))
        throw MakerFailure(
            QStringLiteral("\"%1\" is no address that updates come from; it begins with https:").arg(text));
    return address;
}

void requireKnownVersions(const QMap<QString, QString> &said, const QList<AppcastItem> &items)
{
    for (const QString &version : said.keys()) {
        const bool isKnown =
            std::any_of(items.begin(), items.end(), [&](const AppcastItem &item) { return item.version == version; });
        if (!isKnown)
            throw MakerFailure(QStringLiteral("there is no archive of version %1").arg(version));
    }
}

void save(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw MakerFailure(QStringLiteral("%1: %2").arg(path, file.errorString()));
}

struct Options
{
    QCommandLineOption key{QStringLiteral("key"),
        QStringLiteral("The file with the key (mode 0600), or - for standard input."), QStringLiteral("FILE")};
    QCommandLineOption address{QStringLiteral("address"), QStringLiteral("Where the files of FOLDER are to be found."),
        QStringLiteral("ADDRESS")};
    QCommandLineOption channel{QStringLiteral("channel"),
        QStringLiteral("Offers a version only to those who follow a channel."), QStringLiteral("VERSION=CHANNEL")};
    QCommandLineOption critical{QStringLiteral("critical"),
        QStringLiteral("Marks a version that nobody should skip; with OLDER, nobody with a version before OLDER."),
        QStringLiteral("VERSION[=OLDER]")};
    QCommandLineOption minimumSystem{QStringLiteral("minimum-system"),
        QStringLiteral("The oldest kernel that the versions run on."), QStringLiteral("VERSION")};
    QCommandLineOption title{QStringLiteral("title"), QStringLiteral("The feed's title."), QStringLiteral("TEXT"),
        QStringLiteral("Lumaroo")};
    QCommandLineOption output{QStringLiteral("output"),
        QStringLiteral("The feed's file; FOLDER/appcast.xml unless told."), QStringLiteral("FILE")};
};

void make(const QCommandLineParser &parser, const Options &options)
{
    const SigningKey key = readSigningKey(parser.value(options.key));
    const QString folder = parser.positionalArguments().first();
    const AppcastOrder order{folder, folderAddress(parser.value(options.address)),
        saidOfVersions(parser.values(options.channel)), saidOfVersions(parser.values(options.critical)),
        parser.value(options.minimumSystem)};
    const QList<AppcastItem> items = itemsOfFolder(order, key);
    requireKnownVersions(order.channels, items);
    requireKnownVersions(order.criticalBelow, items);
    const QString output = parser.isSet(options.output) ? parser.value(options.output)
                                                        : QDir(folder).filePath(QStringLiteral("appcast.xml"));
    save(output, writeAppcast({parser.value(options.title), order.address, items}));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Signs the archives (*.tar.gz, *.tar.xz) in FOLDER and writes the "
                                                    "feed that tells of them. A file of an archive's "
                                                    "name that ends in .html holds its release notes."));
    parser.addHelpOption();
    parser.addOptions({options.key, options.address, options.channel, options.critical, options.minimumSystem,
        options.title, options.output});
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("What is published."));
    parser.process(application);
    if (parser.positionalArguments().size() != 1 || !parser.isSet(options.key) || !parser.isSet(options.address)) {
        std::fputs("make-appcast: --key FILE --address ADDRESS FOLDER; --help tells more\n", stderr);
        return 2;
    }
    return runMakerCommand("make-appcast", [&] { make(parser, options); });
}
