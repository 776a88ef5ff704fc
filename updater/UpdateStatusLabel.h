#pragma once

#include "platform/appkit/controls/StyledLabel.h"
#include "updater/core/UpdatePlaces.h"

class NSBundle;
class QFileSystemWatcher;

/// A line about the updates of a bundle, which follows them for as long as it is on screen.
///
/// Its property `status` says what the line is about; `format` is its text, where "%1" stands for the time or the
/// version. A line that has nothing to say has the text `otherwise`, and keeps its place. What has gone wrong is told
/// in words of the line's own (UpdateTroubles.h).
class UpdateStatusLabel : public StyledLabel
{
    Q_OBJECT
    Q_PROPERTY(Status status MEMBER status_)
    Q_PROPERTY(QString format MEMBER format_)
    Q_PROPERTY(QString otherwise MEMBER otherwise_)

public:
    enum Status {
        LastSuccess, ///< when a feed was last read
        WaitingVersion, ///< which version is installed next, or why one was not
        AutomaticChecks, ///< how checks by schedule go, or why there are none
        LostFeed, ///< that no feed could be read for a long time
    };
    Q_ENUM(Status)

    UpdateStatusLabel(QWidget *parent, const NSBundle *bundle);
    ~UpdateStatusLabel() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void follow();
    void tell();
    QString statement() const;
    QString stateOfWaiting() const;

    const NSBundle *bundle_;
    UpdatePlaces places_;
    Status status_ = LastSuccess;
    QString format_;
    QString otherwise_;
    std::unique_ptr<QFileSystemWatcher> watcher_; ///< while on screen
};
