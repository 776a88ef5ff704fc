#pragma once

#include "platform/foundation/preferences/linux/SettingsFile.h"

#include <QList>
#include <QSet>
#include <optional>

/// One settings domain as this process sees it: the file, under this process's changes that are not flushed yet. Where
/// that has changed, or whether it can be stored, each operation tells so as its last act.
class LM_FOUNDATION PreferencesDomain
{
public:
    /// The domain of a name; none for a name that cannot be a file's, which is logged.
    static PreferencesDomain *named(const QString &name);
    /// Those that were asked for so far, of the settings folder of now.
    static QList<PreferencesDomain *> all();

    QVariant value(const QString &key);
    QVariantMap values();

    /// Pending until flush(); no value removes the key. What is no property-list value is logged and changes nothing.
    /// What is set after a look at a file that could not be read fills in what the file turns out to lack, and changes
    /// nothing that it holds: whoever set it saw nothing there.
    void setValue(const QString &key, const QVariant &value);

    /// Drops what is pending of a key.
    void takeBack(const QString &key);

    /// Replaces everything at once; pending as a whole where that fails. While the file cannot be read, only what
    /// differs from values() is pending: what nobody could see is not removed with the rest.
    bool replace(const QVariantMap &values);

    /// Brings what is pending into the file. False where that failed, or where the file cannot be read.
    bool flush();

    /// What keeps flush() from storing, since it last failed.
    const std::optional<PreferencesTrouble> &trouble() const { return file_.trouble(); }
    QString newestFileKeptAside() const { return file_.newestKeptAside(); }

private:
    PreferencesDomain(const QString &name, const QByteArray &path);
    static PreferencesDomain *find(const QString &name);
    void set(const QString &key, const QVariant &value);
    bool flushPending();
    bool replaceWith(const QVariantMap &values);
    QVariant valueAsSeen(const QString &key) const;
    void tellOfChange(bool isChangedHere = false);
    void tellOfTrouble();
    QVariantMap withPendingChanges(const QVariantMap &stored) const;
    void setWhatDiffers(const QVariantMap &values);
    void addPending(const QString &key, const QVariant &value);
    bool givesWayTo(const QVariantMap &stored, const QString &key) const;
    QStringList keysThatGiveWayTo(const QVariantMap &stored) const;

    QString name_;
    SettingsFile file_;
    std::optional<QVariantMap> replacement_; ///< stands for the file's content
    QVariantMap pending_; ///< over both; no value means removal
    QSet<QString> blind_; ///< the pending keys that were set after a look at a file that could not be read
    quint64 changesToldOf_ = 0; ///< of those by others
    std::optional<PreferencesTrouble> troubleToldOf_;
    quint64 filesKeptAsideToldOf_ = 0;
};
