#include "platform/foundation/bundles/internal/StringTables.h"

#include "platform/foundation/system/NSLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace {

constexpr QLatin1StringView folderSuffix(".lproj");
constexpr QLatin1StringView english("en");

QStringList languagesWithAFolder(const QString &resourcePath)
{
    // Without a pattern: the library of regular expressions would be the largest part of what a text costs the agent.
    const QStringList folders = QDir(resourcePath).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QStringList languages;
    for (const QString &folder : folders) {
        if (folder.endsWith(folderSuffix, Qt::CaseInsensitive))
            languages += folder.chopped(folderSuffix.size());
    }
    return languages;
}

/// A language as folders are named, and its more general forms: "de-Latn-AT" gives de_Latn_AT, de_AT, de_Latn, de.
QStringList formsOf(const QString &language)
{
    const QStringList parts = language.split(u'-');
    QStringList forms{parts.join(u'_')};
    if (parts.size() > 2)
        forms += parts.constFirst() + u'_' + parts.constLast();
    for (qsizetype count = parts.size() - 1; count > 0; --count)
        forms += parts.first(count).join(u'_');
    return forms;
}

/// The user's languages as folders are named, best first, up to English.
QStringList userLanguages()
{
    QStringList languages;
    for (const QString &language : QLocale().uiLanguages())
        languages += formsOf(language);
    languages += english;
    languages.removeDuplicates();
    return languages.first(languages.indexOf(english) + 1);
}

} // namespace

StringTables::StringTables(QString resourcePath)
    : resourcePath_(std::move(resourcePath)), languages_(languagesWithAFolder(resourcePath_)),
      preferredLanguages_(preferredOf(languages_))
{
}

QStringList StringTables::preferredOf(const QStringList &languages)
{
    QStringList found;
    for (const QString &language : userLanguages()) {
        if (languages.contains(language))
            found += language;
    }
    return found;
}

QString StringTables::languageFolder(const QString &language) const
{
    return resourcePath_ + u'/' + language + folderSuffix;
}

QString StringTables::text(const QString &tableName, const QString &key)
{
    const QByteArray context = tableName.toUtf8();
    const QByteArray source = key.toUtf8();
    for (const QString &language : preferredLanguages_) {
        const Table &found = table(language, tableName);
        const QString text =
            found.translator ? found.translator->translate(context.constData(), source.constData()) : QString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

const StringTables::Table &StringTables::table(const QString &language, const QString &name)
{
    const QString path = languageFolder(language) + u'/' + name + QStringLiteral(".qm");
    const auto [entry, isNew] = tables_.try_emplace(path);
    if (isNew)
        load(entry->second, path);
    return entry->second;
}

void StringTables::load(Table &table, const QString &path) const
{
    if (!QFileInfo(path).isFile())
        return;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        table.content = file.readAll();
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(reinterpret_cast<const uchar *>(table.content.constData()), int(table.content.size())))
        table.translator = std::move(translator);
    else
        NSLog(QStringLiteral("lumaroo: bundles: %1 is no string table; its texts stay in English").arg(path));
}
