#pragma once

#include "agent/actions/Closing.h"
#include "agent/actions/Preview.h"
#include "agent/gestures/SessionWatch.h"
#include "agent/notices/Notices.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

class Gestures;

/// How an action has ended.
struct ActionOutcome
{
    QString failure; ///< why nothing came of it, a whole sentence in the user's language; empty where it is done
    QString path; ///< of the picture that was taken
};
/// Whoever wants to hear that of one action, once. Not called where the agent ends before the action has.
using ActionTold = std::function<void(const ActionOutcome &)>;

/// What the agent does with a window besides choosing it: with the selected one during a gesture, else with the active
/// one. Asked for by the keys of these actions, and by whoever calls it; nothing goes on between two actions but a
/// preview.
///
/// Each call returns at once, and its outcome is told later. A time is the display's own of the key or button that
/// asks; 0 where there was none, as with a command.
class Actions : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    Actions(WindowSystem &windows, Gestures &gestures);
    ~Actions() override;

    /// Stores a picture of the window, covered or not. screenshotTaken() or refused() follows.
    void takeScreenshot(const ActionTold &told = {});
    /// Asks the window to close, and its user before anything is ended that does not answer. windowClosed(), a dialog
    /// of its program, which is selected then, or refused() follows within about 2 s.
    void closeWindow(quint32 time = 0, const ActionTold &told = {});
    /// Shows the window enlarged, or ends that. During a gesture it follows the selection, and ends with it; it ends
    /// when its user leaves the session.
    void showPreview(const ActionTold &told = {});
    /// Ends it where there is one.
    void endPreview();
    /// Opens the settings at Lumaroo's pane, or brings them to the front as they are.
    void openPrefPane(quint32 time = 0);

Q_SIGNALS:
    void screenshotTaken(const QString &path);
    void windowClosed();
    void previewShown();
    void previewEnded();
    void settingsOpened();
    /// Nothing came of an action. A whole sentence in the user's language, which the user has been told as well.
    void refused(const QString &sentence);

private:
    struct Target
    {
        WindowWorld world;
        WindowDescription window;
    };

    void perform(const QString &action, quint32 time);
    std::optional<Target> target(const char *noWindow, QString *reason);
    void hearEnd(const WindowDescription &window, Closing::Outcome outcome, quint32 dialog, const ActionTold &told);
    void hearButton(const QString &matter);
    void hearClick(const QString &matter);
    void endUnansweringProgram();
    void tellOfPicture(const WindowDescription &window, const QString &path, const ActionTold &told);
    QString begunPreview();
    void preview(const Target &target);
    void followWithPreview();
    void hearPreviewsEnd(const Preview *ended);
    void hidePreview();
    void refuse(const Notice &notice, const ActionTold &told = {});

    WindowSystem &windows_;
    Gestures &gestures_;
    Notices notices_;
    WindowDescription unanswering_; ///< the window whose program its user may end
    QString picture_; ///< the last one that was taken
    bool isPreviewing_ = false; ///< also while the selection has no picture
    std::unique_ptr<Preview> preview_;
    SessionWatch session_; ///< while there is a preview
};
