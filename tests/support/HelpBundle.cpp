#include "HelpBundle.h"

#include "platform/appkit/help/AHRegisterHelpBook.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QFile>

namespace {

const QString helpDomain = QStringLiteral("com.apple.help");
const QString registeredBooks = QStringLiteral("RegisteredBooks");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

HelpBundle::HelpBundle(const QVariantMap &changesToInfo) : TestBundle(QStringLiteral("Test.prefPane"))
{
    QVariantMap info{{QStringLiteral("CFBundleIdentifier"), identifier()},
        {QStringLiteral("CFBundleHelpBookName"), QStringLiteral("Test Help")},
        {QStringLiteral("CFBundleHelpBookFolder"), QStringLiteral("Test.help")},
        {QStringLiteral("CFBundleVersion"), QStringLiteral("7")}};
    info.insert(changesToInfo);
    writeInfo(info);
    writeTestBook(*this, QStringLiteral("Test.help"));
}

void writeTestBook(const TestBundle &bundle, const QString &bookFolder)
{
    const QString built = qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/tests/data/help-book/");
    for (const char *language : {"en", "de"}) {
        const QString inside = QLatin1StringView(language) + QStringLiteral(".lproj/Help.qch");
        bundle.writeFile(QStringLiteral("Contents/Resources/%1/").arg(bookFolder) + inside, contentOf(built + inside));
    }
}

QString HelpBundle::bookFile(const QString &language) const
{
    return resourcePath() + QStringLiteral("/Test.help/%1.lproj/Help.qch").arg(language);
}

int HelpBundle::registerBook() const
{
    const FSRef reference{path()};
    return AHRegisterHelpBook(&reference);
}

QVariantMap registeredBooksOnDisk()
{
    const QString path = qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/lumaroo/com.apple.help.plist");
    return readPropertyList(contentOf(path)).value.toMap().value(registeredBooks).toMap();
}

void setRegisteredBooks(const QVariant &books)
{
    CFPreferencesSetAppValue(registeredBooks, books, helpDomain);
    CFPreferencesAppSynchronize(helpDomain);
}
