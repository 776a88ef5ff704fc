#pragma once

#include "updater/core/UpdateProblem.h"

#include <QDateTime>
#include <QStringList>
#include <optional>

inline const QString updaterDomain = QStringLiteral("com.quorvane.Lumaroo.Updater");

/// The time as the system calls' table tells it, in whole seconds: that is what a settings file keeps.
QDateTime currentTime();

/// An update that waited to be installed, and was not.
struct FailedInstallation
{
    QString version;
    QString displayVersion; ///< as people call it
    UpdateProblem problem;

    bool operator==(const FailedInstallation &) const = default;
};

/// What the updater remembers of its checks, in a settings domain of its own. Each note is stored at once; one that
/// cannot be stored stays pending, as everywhere in the settings.
class UpdateRecord
{
public:
    /// The last check, whatever came of it, and the last that could read a feed; invalid: none yet.
    QDateTime lastCheck() const;
    QDateTime lastSuccess() const;
    /// Whether every check of 30 days and more has failed, up to the last one; a week without any begins anew.
    bool isFeedLost() const;

    void noteSuccess();
    void noteFailure();

    /// The highest version of any feed that could be read; empty: none. Never goes down.
    QString highestVersionSeen() const;
    void noteHighestVersion(const QString &version);

    /// The channels of a feed whose versions this user wants beside those for everybody. Nothing here sets them.
    QStringList followedChannels() const;

    /// The version of which the user wants to hear no more; empty: none.
    QString skippedVersion() const;
    void skip(const QString &version);

    /// The build whose notes were shown, or would have been, last; none on a first installation. Never goes down.
    std::optional<int> buildOfNotes() const;
    void noteBuildOfNotes(int build);

    /// What came of the last update that was to be installed, until another waits; none where it was installed.
    std::optional<FailedInstallation> failedInstallation() const;
    void noteFailedInstallation(const FailedInstallation &failure);
    void forgetFailedInstallation();
};
