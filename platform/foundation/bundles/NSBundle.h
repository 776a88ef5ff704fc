#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <memory>

/// A folder with an Info dictionary, code and resources: Contents/{Info.plist, Linux/, Resources/, Frameworks/}.
///
/// Bundles live as long as the process; one object for each path. The Info dictionary is read once, at the first
/// request, and kept: a bundle that is exchanged on disk keeps answering with what was loaded. An unreadable Info.plist
/// is an empty dictionary and one logged line; a missing one is just an empty dictionary.
///
/// A string table is a Qt translation file, Resources/<language>.lproj/<table>.qm. The context of all its texts is the
/// table's name and their source text is the key: that is what a .ts file holds whose <context> is named after the
/// file, and for an interface file what Qt's tools extract when its class is named after the file. An empty translation
/// counts as missing, an unreadable table too (one logged line).
///
/// The user's languages are those of QLocale's default (LANGUAGE, LC_ALL, LC_MESSAGES, LANG), taken at the first use of
/// each bundle's resources; each region falls back to its language (de_AT, de), then to "en". Nothing comes after "en",
/// since the keys themselves are English.
class LM_FOUNDATION NSBundle
{
public:
    ~NSBundle();
    NSBundle(const NSBundle &) = delete;
    NSBundle &operator=(const NSBundle &) = delete;

    /// The bundle around the running executable (Contents/Linux/<executable>); for a bare executable, the folder it
    /// stands in.
    static NSBundle *mainBundle();
    /// The bundle at a folder, or null when there is no such folder.
    static NSBundle *bundleWithPath(const QString &path);
    /// The bundle with a CFBundleIdentifier whose code this process runs (main bundle included); of several the one
    /// loaded last, since it asks while it comes up. Where none is loaded, one that was merely looked at, or null.
    static NSBundle *bundleWithIdentifier(const QString &identifier);

    /// The code of this bundle runs in this process now. Called by whoever loaded it, before any of it is called.
    void setLoaded();

    QString bundlePath() const;
    QString resourcePath() const;
    /// Contents/Linux/<CFBundleExecutable>, whether or not it exists; empty without CFBundleExecutable.
    QString executablePath() const;
    QString bundleIdentifier() const;

    QVariantMap infoDictionary() const;
    /// The Info dictionary with the entries of the string table "InfoPlist" of the user's language in place of its own.
    QVariantMap localizedInfoDictionary() const;
    /// A value of the localised Info dictionary, or no value.
    QVariant objectForInfoDictionaryKey(const QString &key) const;

    /// The path of a resource: the folder of the user's language first, then Resources itself. An empty `extension`
    /// asks for the bare name. Empty when there is none.
    QString pathForResourceOfType(const QString &name, const QString &extension) const;

    /// The text for `key` in a string table ("" stands for "Localizable") in the user's language; without one, `value`,
    /// and with an empty `value`, `key`.
    QString localizedStringForKeyValueTable(
        const QString &key, const QString &value = {}, const QString &table = {}) const;

    /// The languages the bundle has folders for, and of these the ones to use now, best first ("en" last if it exists).
    QStringList localizations() const;
    QStringList preferredLocalizations() const;
    /// Of any languages, named as folders are, the ones to use now, best first; empty when none suits.
    static QStringList preferredLocalizationsFromArray(const QStringList &languages);

    /// Reads an Info.plist afresh from disk; empty when it is missing or unreadable.
    static QVariantMap infoDictionaryOnDisk(const QString &bundlePath);
    /// Where the program stands that such a dictionary names, whether or not it exists; empty when it names none, or
    /// one outside the bundle.
    static QString executablePathNamedBy(const QVariantMap &infoDictionary, const QString &bundlePath);

private:
    explicit NSBundle(const QString &path);
    class Private;
    std::unique_ptr<Private> d;
};
