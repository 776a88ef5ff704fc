// Makes a key for signing updates, and signs them.

#include "MakerCommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <cstdio>

namespace {

void print(const QByteArray &line)
{
    std::printf("%s\n", line.constData());
}

void generateKey(const QString &name)
{
    const SigningKey key = SigningKey::generated();
    QFile file(name);
    const bool isWritten = key
        && file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner)
        && file.write(key.seed() + '\n') > 0 && file.flush();
    if (!isWritten)
        throw MakerFailure(QStringLiteral("%1: %2").arg(name, file.errorString()));
    print(key.publicKey());
}

void sign(const SigningKey &key, const QStringList &archives)
{
    for (const QString &archive : archives) {
        const QByteArray bytes = readArchive(archive);
        print("sparkle:edSignature=\"" + key.signatureOf(bytes).toBase64() + "\" length=\""
            + QByteArray::number(bytes.size()) + '"');
    }
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Signs archives of new versions: prints for each the attributes of its enclosure in the feed."));
    parser.addHelpOption();
    const QCommandLineOption generate(QStringLiteral("generate"),
        QStringLiteral("Makes a new key, writes it to FILE, which only you may read, and prints its public part, for "
                       "SUPublicEDKey."),
        QStringLiteral("FILE"));
    const QCommandLineOption key(QStringLiteral("key"),
        QStringLiteral("The file with the key (mode 0600), or - for standard input."), QStringLiteral("FILE"));
    const QCommandLineOption publicKey(
        QStringLiteral("public-key"), QStringLiteral("Prints the public part of the key, for SUPublicEDKey."));
    parser.addOptions({generate, key, publicKey});
    parser.addPositionalArgument(
        QStringLiteral("ARCHIVE"), QStringLiteral("What is signed."), QStringLiteral("[ARCHIVE...]"));
    parser.process(application);
    const QStringList archives = parser.positionalArguments();
    const bool hasWork = parser.isSet(generate) ? !parser.isSet(key) && !parser.isSet(publicKey) && archives.isEmpty()
                                                : parser.isSet(key) && parser.isSet(publicKey) == archives.isEmpty();
    if (!hasWork) {
        std::fputs("sign-update: --generate FILE, --key FILE --public-key, or --key FILE ARCHIVE...\n", stderr);
        return 2;
    }
    return runMakerCommand("sign-update", [&] {
        if (parser.isSet(generate))
            generateKey(parser.value(generate));
        else if (parser.isSet(publicKey))
            print(readSigningKey(parser.value(key)).publicKey());
        else
            sign(readSigningKey(parser.value(key)), archives);
    });
}
