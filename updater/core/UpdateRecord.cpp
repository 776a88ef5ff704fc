#include "updater/core/UpdateRecord.h"

#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "platform/foundation/system/SystemCalls.h"
#include "updater/core/Versions.h"

namespace {

const QString lastCheckKey = QStringLiteral("LastCheck");
const QString lastSuccessKey = QStringLiteral("LastSuccessfulCheck");
const QString failingSinceKey = QStringLiteral("FailingSince");
const QString highestVersionKey = QStringLiteral("HighestVersionSeen");
const QString channelsKey = QStringLiteral("Channels");
const QString skippedVersionKey = QStringLiteral("SkippedVersion");
const QString buildOfNotesKey = QStringLiteral("BuildOfNotes");
const QString failedInstallationKey = QStringLiteral("FailedInstallation");
// Within it.
const QString versionKey = QStringLiteral("Version");
const QString displayVersionKey = QStringLiteral("DisplayVersion");
const QString problemKey = QStringLiteral("Problem");
const QString detailKey = QStringLiteral("Detail");

constexpr int daysUntilLost = 30;
/// A longer one between two checks, with nobody looking, tells nothing of the feed.
constexpr int daysOfLongestPause = 7;

QVariant stored(const QString &key)
{
    return CFPreferencesCopyAppValue(key, updaterDomain);
}

QDateTime storedDate(const QString &key)
{
    const QVariant value = stored(key);
    return value.typeId() == QMetaType::QDateTime ? value.toDateTime() : QDateTime();
}

QString storedText(const QString &key)
{
    const QVariant value = stored(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

void set(const QString &key, const QVariant &value)
{
    CFPreferencesSetAppValue(key, value, updaterDomain);
}

void setText(const QString &key, const QString &text)
{
    set(key, text.isEmpty() ? QVariant() : text);
}

/// One that only another version knows is the most general one.
UpdateProblem::Kind kindOf(const QVariant &number)
{
    using Kind = UpdateProblem::Kind;
    const int kind = integerWithin32Bits(number).value_or(0);
    return kind > int(Kind::None) && kind < int(Kind::Exchange) ? Kind(kind) : Kind::Exchange;
}

void save()
{
    CFPreferencesAppSynchronize(updaterDomain);
}

} // namespace

QDateTime currentTime()
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(systemCalls().realTime());
    return QDateTime::fromSecsSinceEpoch(seconds.count(), Qt::UTC);
}

QDateTime UpdateRecord::lastCheck() const
{
    return storedDate(lastCheckKey);
}

QDateTime UpdateRecord::lastSuccess() const
{
    return storedDate(lastSuccessKey);
}

bool UpdateRecord::isFeedLost() const
{
    const QDateTime since = storedDate(failingSinceKey);
    return since.isValid() && since.addDays(daysUntilLost) <= lastCheck();
}

void UpdateRecord::noteSuccess()
{
    set(lastCheckKey, currentTime());
    set(lastSuccessKey, currentTime());
    set(failingSinceKey, {});
    save();
}

void UpdateRecord::noteFailure()
{
    const QDateTime since = storedDate(failingSinceKey);
    const bool wasPaused = lastCheck().addDays(daysOfLongestPause) < currentTime();
    // A beginning in the future was noted before the clock was set back.
    if (!since.isValid() || since > currentTime() || wasPaused)
        set(failingSinceKey, currentTime());
    set(lastCheckKey, currentTime());
    save();
}

QString UpdateRecord::highestVersionSeen() const
{
    return storedText(highestVersionKey);
}

void UpdateRecord::noteHighestVersion(const QString &version)
{
    if (!isNewer(version, highestVersionSeen()))
        return;
    setText(highestVersionKey, version);
    save();
}

QStringList UpdateRecord::followedChannels() const
{
    return stored(channelsKey).toString().split(u',', Qt::SkipEmptyParts);
}

QString UpdateRecord::skippedVersion() const
{
    return storedText(skippedVersionKey);
}

void UpdateRecord::skip(const QString &version)
{
    setText(skippedVersionKey, version);
    save();
}

std::optional<int> UpdateRecord::buildOfNotes() const
{
    return integerWithin32Bits(stored(buildOfNotesKey));
}

void UpdateRecord::noteBuildOfNotes(int build)
{
    if (build <= buildOfNotes().value_or(-1))
        return;
    set(buildOfNotesKey, qlonglong(build));
    save();
}

std::optional<FailedInstallation> UpdateRecord::failedInstallation() const
{
    const QVariantMap values = stored(failedInstallationKey).toMap();
    const QString version = values.value(versionKey).toString();
    if (version.isEmpty())
        return std::nullopt;
    return FailedInstallation{version, values.value(displayVersionKey).toString(),
        {kindOf(values.value(problemKey)), values.value(detailKey).toString()}};
}

void UpdateRecord::noteFailedInstallation(const FailedInstallation &failure)
{
    set(failedInstallationKey,
        QVariantMap{{versionKey, failure.version}, {displayVersionKey, failure.displayVersion},
            {problemKey, qlonglong(failure.problem.kind)}, {detailKey, failure.problem.detail}});
    save();
}

void UpdateRecord::forgetFailedInstallation()
{
    if (!stored(failedInstallationKey).isValid())
        return;
    set(failedInstallationKey, {});
    save();
}
