#include "updater/core/UpdateCheck.h"

#include "platform/foundation/system/NSLog.h"
#include "updater/core/Appcast.h"
#include "updater/core/InstalledBundle.h"
#include "updater/core/UpdateRecord.h"

#include <QRegularExpression>
#include <QSysInfo>

namespace {

/// "6.1.0" of "6.1.0-18-amd64".
QString kernelVersion()
{
    static const QRegularExpression numbers(QStringLiteral("\\A[0-9]+(\\.[0-9]+)*"));
    return numbers.match(QSysInfo::kernelVersion()).captured();
}

} // namespace

UpdateCheck::UpdateCheck(const QString &bundlePath, const QUrl &feed, bool isAskedByUser)
    : bundle_(bundlePath), feed_(feed), isAskedByUser_(isAskedByUser),
      download_({.address = feed, .feed = feed, .largestSize = largestAppcast}, [this](const QByteArray &part) {
          bytes_ += part;
          return QString();
      })
{
    connect(&download_, &Download::finished, this, &UpdateCheck::takeEnd);
}

void UpdateCheck::start()
{
    download_.start();
}

void UpdateCheck::takeEnd(const QString &problem)
{
    if (!problem.isEmpty()) {
        fail(problem);
        return;
    }
    const AppcastReading reading = readAppcast(bytes_, feed_);
    for (const QString &left : reading.problems)
        NSLog(QStringLiteral("lumaroo: updates: %1: %2").arg(feed_.toDisplayString(), left));
    if (!reading) {
        fail(reading.error);
        return;
    }
    const UpdateChoice choice = chooseUpdate(reading.items, circumstances());
    if (choice.hasGoneBack) {
        fail(QStringLiteral("it ends before version %1, which it had before").arg(choice.highestVersion));
        return;
    }
    UpdateRecord().noteSuccess();
    UpdateRecord().noteHighestVersion(choice.highestVersion);
    Q_EMIT finished({{}, choice});
}

void UpdateCheck::fail(const QString &problem)
{
    UpdateRecord().noteFailure();
    NSLog(QStringLiteral("lumaroo: updates: %1: %2").arg(feed_.toDisplayString(), problem));
    Q_EMIT finished({{UpdateProblem::Kind::Feed, problem}, {}});
}

UpdateCircumstances UpdateCheck::circumstances() const
{
    return {InstalledBundle(bundle_).version, UpdateRecord().highestVersionSeen(), UpdateRecord().skippedVersion(),
        kernelVersion(), LUMAROO_PLATFORM_VERSION, UpdateRecord().followedChannels(), isAskedByUser_};
}
