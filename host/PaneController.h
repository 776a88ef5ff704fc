#pragma once

#include "host/PaneFailure.h"

#include <QObject>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class NSPreferencePane;
class PaneStage;
class QWidget;

/// Drives panes through their contract. A pane once loaded is kept, one for each bundle, and shown again, until
/// releaseAll. Whatever a pane throws is logged and ends there.
class PaneController : public QObject
{
    Q_OBJECT

public:
    explicit PaneController(PaneStage *stage);
    ~PaneController() override;

    /// Loads the pane if need be and shows it: willSelect, on screen, didSelect. Called while no pane is shown; on
    /// failure none is.
    PaneFailureReport select(const QString &bundlePath);

    /// Asks the shown pane whether it may be left, and if so leaves it and calls `afterwards`; at once where none is
    /// shown. While an answer is outstanding a second call only replaces what is done afterwards. Emits paneWasKept
    /// when the pane stays.
    void leave(std::function<void()> afterwards);
    /// Leaves without asking.
    void leaveAtOnce();
    /// Destroys every pane; none may be shown.
    void releaseAll();

    /// The bundle of the shown pane, or empty.
    QString currentPath() const { return currentPath_; }
    /// A call into a pane is on the stack: it may run an event loop of its own and must come to its end first.
    bool isInsidePane() const { return callsInProgress_ > 0; }

Q_SIGNALS:
    /// A pane's view was loaded; it is not on screen yet and the pane has not been asked to select itself.
    void viewLoaded(const QString &bundlePath, QWidget *view);
    void paneWasKept();
    /// The last call into a pane returned.
    void paneReturned();

private:
    PaneFailureReport load(const QString &bundlePath);
    bool call(const char *name, const std::function<void()> &operation);
    void finishSelection();
    void ask();
    void takeReply(bool shouldUnselect);
    NSPreferencePane *current() const;

    PaneStage *stage_;
    std::map<QString, std::unique_ptr<NSPreferencePane>> panes_;
    QString currentPath_;
    bool selectionUnfinished_ = false;
    bool asking_ = false;
    int callsInProgress_ = 0;
    std::optional<bool> reply_;
    std::function<void()> afterwards_;
};
