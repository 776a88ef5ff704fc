#include "platform/appkit/help/internal/HelpBook.h"

#include "platform/appkit/help/internal/RegisteredBooks.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString fileInLanguageFolder = QStringLiteral(".lproj/Help.qch");

QStringList languagesIn(const QDir &folder)
{
    QStringList languages;
    for (const QString &name : folder.entryList({QStringLiteral("*.lproj")}, QDir::Dirs, QDir::Name))
        languages += name.section(u'.', 0, 0);
    // One that nobody wished for is better than none.
    return NSBundle::preferredLocalizationsFromArray(languages) + languages;
}

HelpBook bookIn(const QString &bundlePath, const QString &name)
{
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundlePath);
    const QString folderName = textIn(info, QStringLiteral("CFBundleHelpBookFolder"));
    if (folderName.isEmpty() || folderName.contains(u'/'))
        return {};
    const QDir folder(bundlePath + QStringLiteral("/Contents/Resources/") + folderName);
    for (const QString &language : languagesIn(folder)) {
        const QString file = folder.filePath(language + fileInLanguageFolder);
        if (QFileInfo(file).isFile())
            return {name, textIn(info, QStringLiteral("CFBundleVersion")), language, file};
    }
    return {};
}

} // namespace

HelpBook helpBookNamed(const QString &name)
{
    for (const QString &bundlePath : bundlesOfBook(name)) {
        const HelpBook book = bookIn(bundlePath, name);
        if (!book.file.isEmpty())
            return book;
    }
    return {name, {}, {}, {}};
}
