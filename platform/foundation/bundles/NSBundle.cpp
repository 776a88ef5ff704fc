#include "platform/foundation/bundles/NSBundle.h"

#include "platform/foundation/bundles/internal/InfoDictionary.h"
#include "platform/foundation/bundles/internal/StringTables.h"
#include "platform/foundation/system/NSLog.h"
#include "platform/foundation/system/RunningExecutable.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <optional>
#include <vector>

class NSBundle::Private
{
public:
    explicit Private(const QString &bundlePath) : path(bundlePath) { }
    static std::vector<NSBundle *> &used();
    static std::vector<NSBundle *> &loaded();
    static NSBundle *atCanonicalPath(const QString &path);
    StringTables &stringTables();
    QString existingResource(const QString &fileName);

    const QString path;
    std::optional<QVariantMap> info;
    std::optional<StringTables> tables;
};

/// Never destroyed: bundles live as long as the process, also while static objects end.
std::vector<NSBundle *> &NSBundle::Private::used()
{
    static auto *const bundles = new std::vector<NSBundle *>;
    return *bundles;
}

/// The last one first.
std::vector<NSBundle *> &NSBundle::Private::loaded()
{
    static auto *const bundles = new std::vector<NSBundle *>;
    return *bundles;
}

NSBundle *NSBundle::Private::atCanonicalPath(const QString &path)
{
    for (NSBundle *bundle : used()) {
        if (bundle->d->path == path)
            return bundle;
    }
    used().push_back(new NSBundle(path));
    return used().back();
}

StringTables &NSBundle::Private::stringTables()
{
    if (!tables)
        tables.emplace(path + QStringLiteral("/Contents/Resources"));
    return *tables;
}

QString NSBundle::Private::existingResource(const QString &fileName)
{
    QStringList folders;
    for (const QString &language : stringTables().preferredLanguages())
        folders += stringTables().languageFolder(language);
    folders += path + QStringLiteral("/Contents/Resources");
    for (const QString &folder : folders) {
        const QString candidate = folder + u'/' + fileName;
        if (QFileInfo::exists(candidate))
            return candidate;
    }
    return {};
}

namespace {

const QString codeFolder = QStringLiteral("/Contents/Linux");

QString folderOfMainBundle()
{
    const QFileInfo executable(runningExecutablePath());
    const QString folder = executable.path();
    return folder.endsWith(codeFolder) ? folder.chopped(codeFolder.size()) : folder;
}

} // namespace

NSBundle::NSBundle(const QString &path) : d(std::make_unique<Private>(path)) { }

NSBundle::~NSBundle() = default;

NSBundle *NSBundle::mainBundle()
{
    static NSBundle *const bundle = Private::atCanonicalPath(folderOfMainBundle());
    return bundle;
}

NSBundle *NSBundle::bundleWithPath(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir() ? Private::atCanonicalPath(folder.canonicalFilePath()) : nullptr;
}

NSBundle *NSBundle::bundleWithIdentifier(const QString &identifier)
{
    std::vector<NSBundle *> candidates = Private::loaded();
    candidates.push_back(mainBundle());
    candidates.insert(candidates.end(), Private::used().begin(), Private::used().end());
    for (NSBundle *bundle : candidates) {
        if (!identifier.isEmpty() && bundle->bundleIdentifier() == identifier)
            return bundle;
    }
    return nullptr;
}

void NSBundle::setLoaded()
{
    std::vector<NSBundle *> &loaded = Private::loaded();
    loaded.erase(std::remove(loaded.begin(), loaded.end(), this), loaded.end());
    loaded.insert(loaded.begin(), this);
}

QString NSBundle::bundlePath() const
{
    return d->path;
}

QString NSBundle::resourcePath() const
{
    return d->path + QStringLiteral("/Contents/Resources");
}

QString NSBundle::executablePath() const
{
    return executablePathNamedBy(infoDictionary(), d->path);
}

QString NSBundle::executablePathNamedBy(const QVariantMap &infoDictionary, const QString &bundlePath)
{
    const QVariant value = infoDictionary.value(QStringLiteral("CFBundleExecutable"));
    const QString name = value.typeId() == QMetaType::QString ? value.toString() : QString();
    return name.isEmpty() || name.contains(u'/') ? QString() : bundlePath + codeFolder + u'/' + name;
}

QString NSBundle::bundleIdentifier() const
{
    const QVariant identifier = infoDictionary().value(QStringLiteral("CFBundleIdentifier"));
    return identifier.typeId() == QMetaType::QString ? identifier.toString() : QString();
}

QVariantMap NSBundle::infoDictionary() const
{
    if (!d->info) {
        const InfoDictionaryReading reading = readInfoDictionary(d->path);
        if (!reading.error.isEmpty())
            NSLog(QStringLiteral("lumaroo: bundles: cannot read the Info.plist of %1: %2; going on without")
                      .arg(d->path, reading.error));
        d->info = reading.dictionary;
    }
    return *d->info;
}

QVariantMap NSBundle::localizedInfoDictionary() const
{
    QVariantMap info = infoDictionary();
    for (auto entry = info.begin(); entry != info.end(); ++entry) {
        const QString text = d->stringTables().text(QStringLiteral("InfoPlist"), entry.key());
        if (!text.isEmpty())
            entry.value() = text;
    }
    return info;
}

QVariant NSBundle::objectForInfoDictionaryKey(const QString &key) const
{
    return localizedInfoDictionary().value(key);
}

QString NSBundle::pathForResourceOfType(const QString &name, const QString &extension) const
{
    if (name.isEmpty())
        return {};
    return d->existingResource(extension.isEmpty() ? name : name + u'.' + extension);
}

QString NSBundle::localizedStringForKeyValueTable(const QString &key, const QString &value, const QString &table) const
{
    const QString text = d->stringTables().text(table.isEmpty() ? QStringLiteral("Localizable") : table, key);
    if (!text.isEmpty())
        return text;
    return value.isEmpty() ? key : value;
}

QStringList NSBundle::localizations() const
{
    return d->stringTables().languages();
}

QStringList NSBundle::preferredLocalizations() const
{
    return d->stringTables().preferredLanguages();
}

QStringList NSBundle::preferredLocalizationsFromArray(const QStringList &languages)
{
    return StringTables::preferredOf(languages);
}

QVariantMap NSBundle::infoDictionaryOnDisk(const QString &bundlePath)
{
    return readInfoDictionary(bundlePath).dictionary;
}
