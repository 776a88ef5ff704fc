#include "platform/foundation/preferences/internal/PreferencesDomain.h"

#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/system/NSLog.h"
#include "platform/foundation/system/UserFolders.h"

#include <QFile>
#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace {

constexpr qsizetype longestName = 200; // in bytes; the file's name has a suffix, and so have its side files

using Domains = std::map<QString, std::unique_ptr<PreferencesDomain>>;

/// All of this process, by their paths.
Domains &domains()
{
    static Domains domains;
    return domains;
}

QString settingsFolder()
{
    return userConfigurationFolder() + QStringLiteral("/lumaroo/");
}

bool canNameADomain(const QString &name)
{
    const auto isAllowed = [](QChar character) {
        return character != u'/' && character.category() != QChar::Other_Control;
    };
    return !name.isEmpty() && !name.startsWith(u'.') && QFile::encodeName(name).size() <= longestName
        && std::all_of(name.begin(), name.end(), isAllowed);
}

} // namespace

/// Every key that is read or written asks, mostly for the same domain as the one before.
PreferencesDomain *PreferencesDomain::named(const QString &name)
{
    static QString lastFolder;
    static QString lastName;
    static PreferencesDomain *lastAnswer = nullptr;
    if (!lastAnswer || lastName != name || lastFolder != userConfigurationFolder()) {
        lastAnswer = find(name);
        lastFolder = userConfigurationFolder();
        lastName = name;
    }
    return lastAnswer;
}

PreferencesDomain *PreferencesDomain::find(const QString &name)
{
    if (!canNameADomain(name)) {
        NSLog(QStringLiteral("lumaroo: settings: \"%1\" cannot name a domain; nothing is read or written").arg(name));
        return nullptr;
    }
    const QString path = settingsFolder() + name + QStringLiteral(".plist");
    std::unique_ptr<PreferencesDomain> &domain = domains()[path];
    if (!domain)
        domain.reset(new PreferencesDomain(name, QFile::encodeName(path)));
    return domain.get();
}

QList<PreferencesDomain *> PreferencesDomain::all()
{
    QList<PreferencesDomain *> found;
    for (const auto &[path, domain] : domains()) {
        if (path.startsWith(settingsFolder()))
            found += domain.get();
    }
    return found;
}

PreferencesDomain::PreferencesDomain(const QString &name, const QByteArray &path) : name_(name), file_(path) { }

QVariant PreferencesDomain::value(const QString &key)
{
    const bool isOurs = pending_.contains(key) && !blind_.contains(key);
    if (!isOurs && !replacement_)
        file_.values();
    const QVariant value = valueAsSeen(key);
    tellOfChange();
    return value;
}

QVariantMap PreferencesDomain::values()
{
    const QVariantMap values = withPendingChanges(replacement_ ? QVariantMap() : file_.values());
    tellOfChange();
    return values;
}

QVariant PreferencesDomain::valueAsSeen(const QString &key) const
{
    const auto pending = pending_.constFind(key);
    if (pending != pending_.constEnd() && !givesWayTo(file_.lastValues(), key))
        return *pending;
    return replacement_ ? replacement_->value(key) : file_.lastValues().value(key);
}

void PreferencesDomain::tellOfChange(bool isChangedHere)
{
    const bool isChangedByOthers = std::exchange(changesToldOf_, file_.changesByOthers()) != file_.changesByOthers();
    if (isChangedHere || isChangedByOthers)
        NSNotificationCenter::defaultCenter()->postNotificationNameObject(NSUserDefaultsDidChangeNotification, name_);
    tellOfTrouble();
}

void PreferencesDomain::tellOfTrouble()
{
    NSNotificationCenter *const centre = NSNotificationCenter::defaultCenter();
    if (std::exchange(troubleToldOf_, file_.trouble()) != file_.trouble())
        centre->postNotificationNameObject(PreferencesTroubleDidChangeNotification, name_);
    if (std::exchange(filesKeptAsideToldOf_, file_.timesMovedAside()) != file_.timesMovedAside())
        centre->postNotificationNameObject(PreferencesFileWasKeptAsideNotification, name_);
}

void PreferencesDomain::setValue(const QString &key, const QVariant &value)
{
    const QVariant converted = propertyListValue(value);
    if (value.isValid() && !converted.isValid())
        NSLog(QStringLiteral(
            "lumaroo: settings: the value for \"%1\" is no property-list value (%2); the key keeps what it has")
                  .arg(key, QString::fromLatin1(value.typeName())));
    else
        set(key, converted);
}

void PreferencesDomain::set(const QString &key, const QVariant &value)
{
    const QVariant before = valueAsSeen(key);
    addPending(key, value);
    tellOfChange(!isEqualPropertyList(before, valueAsSeen(key)));
}

void PreferencesDomain::takeBack(const QString &key)
{
    const QVariant before = valueAsSeen(key);
    pending_.remove(key);
    blind_.remove(key);
    tellOfChange(!isEqualPropertyList(before, valueAsSeen(key)));
}

void PreferencesDomain::addPending(const QString &key, const QVariant &value)
{
    pending_.insert(key, value);
    if (file_.wasReadable())
        blind_.remove(key);
    else
        blind_.insert(key);
}

bool PreferencesDomain::givesWayTo(const QVariantMap &stored, const QString &key) const
{
    return !replacement_ && blind_.contains(key) && stored.contains(key);
}

QStringList PreferencesDomain::keysThatGiveWayTo(const QVariantMap &stored) const
{
    QStringList keys(blind_.begin(), blind_.end());
    keys.removeIf([&](const QString &key) { return !givesWayTo(stored, key); });
    keys.sort();
    return keys;
}

bool PreferencesDomain::replace(const QVariantMap &values)
{
    const QVariantMap before = withPendingChanges(file_.lastValues());
    const bool isReplaced = replaceWith(values);
    tellOfChange(!isEqualPropertyList(before, withPendingChanges(file_.lastValues())));
    return isReplaced;
}

bool PreferencesDomain::replaceWith(const QVariantMap &values)
{
    const QVariant converted = propertyListValue(values);
    if (!converted.isValid()) {
        NSLog(QStringLiteral(
            "lumaroo: settings: the dictionary for a whole domain is no property list; the domain keeps what it has"));
        return false;
    }
    const auto before = std::exchange(replacement_, converted.toMap());
    const QVariantMap pendingBefore = std::exchange(pending_, {});
    const QSet<QString> blindBefore = std::exchange(blind_, {});
    if (flushPending())
        return true;
    if (!file_.isReadable()) {
        replacement_ = before;
        pending_ = pendingBefore;
        blind_ = blindBefore;
        setWhatDiffers(converted.toMap());
    }
    return false;
}

void PreferencesDomain::setWhatDiffers(const QVariantMap &values)
{
    const QVariantMap seen = withPendingChanges(replacement_ ? QVariantMap() : file_.values());
    for (auto entry = seen.begin(); entry != seen.end(); ++entry) {
        if (!values.contains(entry.key()))
            addPending(entry.key(), QVariant());
    }
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (!seen.contains(entry.key()) || !isEqualPropertyList(seen.value(entry.key()), entry.value()))
            addPending(entry.key(), entry.value());
    }
}

bool PreferencesDomain::flush()
{
    const bool isFlushed = flushPending();
    tellOfChange();
    return isFlushed;
}

bool PreferencesDomain::flushPending()
{
    QStringList kept;
    const auto change = [&](const QVariantMap &stored) {
        kept = keysThatGiveWayTo(stored);
        return withPendingChanges(stored);
    };
    if (!file_.update(change))
        return false;
    if (!kept.isEmpty())
        NSLog(QStringLiteral("lumaroo: settings: can be read again; what is stored stays for %1")
                  .arg(kept.join(QStringLiteral(", "))));
    replacement_.reset();
    pending_.clear();
    blind_.clear();
    return true;
}

QVariantMap PreferencesDomain::withPendingChanges(const QVariantMap &stored) const
{
    QVariantMap values = replacement_.value_or(stored);
    for (auto change = pending_.begin(); change != pending_.end(); ++change) {
        if (givesWayTo(stored, change.key()))
            continue;
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
    return values;
}
