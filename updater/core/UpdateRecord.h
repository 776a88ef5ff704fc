#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

inline const QString updaterDomain = QStringLiteral("com.quorvane.Lumaroo.Updater");

/// The time as the system calls' table tells it, in whole seconds: that is what a settings file keeps.
QDateTime currentTime();

/// What the updater remembers of its checks, in a settings domain of its own. Each note is stored at once; one that
/// cannot be stored stays pending, as everywhere in the settings.
class UpdateRecord
{
public:
    /// The last check, whatever came of it, and the last that could read a feed; invalid: none yet.
    QDateTime lastCheck() const;
    QDateTime lastSuccess() const;
    /// Whether every check of the last 30 days and more has failed.
    bool isFeedLost() const;

    void noteSuccess();
    void noteFailure();

    /// The highest version of any feed that could be read; empty: none. Never goes down.
    QString highestVersionSeen() const;
    void noteHighestVersion(const QString &version);

    /// The version of which the user wants to hear no more; empty: none.
    QString skippedVersion() const;
    void skip(const QString &version);

    /// The build whose notes were shown, or would have been, last; none on a first installation. Never goes down.
    std::optional<int> buildOfNotes() const;
    void noteBuildOfNotes(int build);

    /// Why the last installation failed, in English for the log; empty where it did not.
    QString installationProblem() const;
    void noteInstallation(const QString &problem);
};
