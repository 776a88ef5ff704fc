#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/NSEvent.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

/// The application that the panes run in. Main thread only.
class LM_APPKIT NSApplication
{
public:
    static NSApplication *sharedApplication();

    /// Asks the application to end, as its user would: it may ask the shown pane first, and it may stay. Returns before
    /// it has ended.
    void terminate(QObject *sender);
    /// How this application ends; set by its main program. Without one it closes its windows and quits.
    void setTerminationHandler(std::function<void()> handler) { terminationHandler_ = std::move(handler); }

    /// The application's one window; named by its main program, which shows it. Null without one, and after its end.
    QWidget *mainWindow() const { return mainWindow_; }
    void setMainWindow(QWidget *window) { mainWindow_ = window; }

    /// Brings the main window to the front, also a minimised one, and gives it the focus, or the sheet on it;
    /// where it has not got it after a second, the window asks for the user's attention. With false, which leaves the
    /// focus to whoever has it, it asks at once and does nothing else. Does nothing before the main window is shown.
    void activateIgnoringOtherApps(bool ignoresOthers);

    /// What is being handled: a key press while a text field's delegate is asked about it, else of type Other. Set by
    /// whoever brings events to delegates.
    NSEvent currentEvent() const { return currentEvent_; }
    void setCurrentEvent(const NSEvent &event) { currentEvent_ = event; }

private:
    NSApplication() = default;
    NSEvent currentEvent_;
    std::function<void()> terminationHandler_;
    QPointer<QWidget> mainWindow_;
};
