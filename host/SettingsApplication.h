#pragma once

#include "host/HostState.h"
#include "host/HostWindow.h"
#include "host/PaneController.h"
#include "host/StoreNotices.h"

#include <QObject>
#include <QStringList>
#include <optional>

/// The settings application: its window, the panes it drives, and the ways between them.
class SettingsApplication : public QObject
{
    Q_OBJECT

public:
    /// Looks for panes in these folders.
    explicit SettingsApplication(const QStringList &folders);
    ~SettingsApplication() override;

    /// Shows the window: with a pane (path or identifier), or with the overview when the request is empty.
    void start(const QString &request);
    /// What a second start asks for: an empty request only brings the window to the front. While it is not yet said
    /// whether the application ends, a request waits for that.
    void open(const QString &request, const QString &activationToken);
    void showOverview();
    void search();

    /// Asks the shown pane whether it may be left, then ends.
    void terminate();
    /// Ends without asking: the user's session or a signal ends the program.
    void terminateAtOnce();
    /// Leaves and releases what is left and remembers the host's own state. Called when the event loop has ended.
    void finish();

    HostWindow *window() { return &window_; }
    /// What another start asked for while the end was in question; empty without, or where the session's end is the
    /// reason. Once this one has ended, another has to serve it.
    QString requestLeft() const { return requestLeft_; }

Q_SIGNALS:
    /// Nothing can keep the application from ending any more.
    void ending();

private:
    struct Destination
    {
        enum class Kind { Overview, Search, Pane, End };
        Kind kind;
        QString request;
    };

    void go(const Destination &destination);
    bool isOnlyPane(const QString &path) const;
    void rememberPages(const QString &path, QWidget *view);
    void arrive(const Destination &destination);
    void arriveAtOverview();
    void openPane(const QString &request);
    void goOnWhenPossible();
    void keepPane();

    QStringList folders_;
    HostState state_;
    HostWindow window_;
    StoreNotices notices_;
    PaneController controller_;
    QString lastPath_;
    QString requestLeft_;
    std::optional<Destination> waiting_;
    bool terminating_ = false;
    bool endsAtOnce_ = false;
    bool finished_ = false;
};
