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
const QString skippedVersionKey = QStringLiteral("SkippedVersion");
const QString buildOfNotesKey = QStringLiteral("BuildOfNotes");
const QString installationProblemKey = QStringLiteral("InstallationProblem");

constexpr int daysUntilLost = 30;

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
    return since.isValid() && since.addDays(daysUntilLost) <= currentTime();
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
    // A beginning in the future was noted before the clock was set back.
    if (!since.isValid() || since > currentTime())
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

QString UpdateRecord::installationProblem() const
{
    return storedText(installationProblemKey);
}

void UpdateRecord::noteInstallation(const QString &problem)
{
    setText(installationProblemKey, problem);
    save();
}
