#pragma once

#include "updater/Export.h"

#include <QObject>
#include <QUrl>
#include <memory>

class NSBundle;
class UpdateEngine;
class UpdateSchedule;

/// Keeps one bundle up to date from its feed. Main thread only.
///
/// Checks by schedule need a bundle that can be updated: one whose Info dictionary names a key (SUPublicEDKey), and
/// that this user may write. When the last check was, and what it saw, is remembered for all bundles together.
class LM_UPDATER SUUpdater : public QObject
{
    Q_OBJECT

public:
    /// The one updater of a bundle, made at the first request. It lives until the application object goes; nobody else
    /// owns it.
    static SUUpdater *updaterForBundle(NSBundle *bundle);

    /// Turns checks by schedule on or off, from now on; they are off at first. A check that is due runs soon after, not
    /// within this call.
    void setAutomaticallyChecksForUpdates(bool checks);

    /// Where the feed is, to the letter, since an address as such would write its host small: as the Info dictionary
    /// tells it (SUFeedURL), until another one is set, which counts for all later checks of this process. A check needs
    /// https, or http from this machine.
    QString feedURL() const { return feed_; }
    void setFeedURL(const QString &address) { feed_ = address; }

    /// The time between two checks by schedule, in seconds; a day at first. Less than an hour counts as an hour. What
    /// runs already keeps its time until resetUpdateCycle.
    void setUpdateCheckInterval(double seconds) { interval_ = seconds; }
    /// Starts the schedule afresh with the settings of now; called after they have been set.
    void resetUpdateCycle();

    /// Checks at once and shows the user what comes of it, failures included, in windows of its own, which come to the
    /// front. Returns at once. A check while a window is open brings that to the front. `sender` is not asked anything.
    void checkForUpdates(QObject *sender);

    ~SUUpdater() override;

private:
    explicit SUUpdater(NSBundle *bundle);
    void finishEarlierUpdates();
    void checkBySchedule();
    QUrl feedAddress() const;
    UpdateEngine *engine();

    NSBundle *bundle_;
    QString feed_;
    double interval_;
    bool checksAutomatically_ = false;
    std::unique_ptr<UpdateSchedule> schedule_;
    std::unique_ptr<UpdateEngine> engine_; ///< from the first check on
    bool isEngineMissed_ = false;
};
