#pragma once

#include "platform/appkit/Export.h"

#include <QString>
#include <functional>
#include <memory>

class NSBundle;
class QObject;
class QWidget;

enum NSAlertReturn {
    NSAlertFirstButtonReturn = 1000,
    NSAlertSecondButtonReturn = 1001,
    NSAlertThirdButtonReturn = 1002
};

/// What NSRunAlertPanel returns.
enum NSAlertPanelReturn { NSAlertOtherReturn = -1, NSAlertAlternateReturn = 0, NSAlertDefaultReturn = 1 };

/// A message with an icon, buttons from right to left, an optional help button and an optional check box with which the
/// user wishes not to see its like again.
class LM_APPKIT NSAlert
{
public:
    NSAlert();
    ~NSAlert();
    NSAlert(const NSAlert &) = delete;
    NSAlert &operator=(const NSAlert &) = delete;

    void setMessageText(const QString &text);
    void setInformativeText(const QString &text);
    /// The image file to show beside the text; a file that is missing or unreadable gives no icon and no error.
    void setIconFile(const QString &path);
    /// Adds a button; an alert without any gets "OK".
    ///
    /// The Cancel button is the one titled "Cancel", or as the main bundle or the help anchor's bundle has that word in
    /// the user's language. The focus starts on it if there is one, else on the first button; Escape and closing the
    /// window press it, or else the only button.
    void addButtonWithTitle(const QString &title);
    /// The plain key that presses a button, such as "q"; no modifier needed.
    void setKeyEquivalent(int buttonIndex, const QString &key);

    /// Shows a help button that opens `anchor` in the help book of `bundle` (CFBundleHelpBookName) with NSHelpManager.
    void setShowsHelp(bool shows);
    void setHelpAnchor(const QString &anchor, NSBundle *bundle);

    /// Shows the suppression check box, above the buttons.
    void setShowsSuppressionButton(bool shows);
    /// NSOnState or NSOffState: as it starts and, once the alert has ended, as the user left it.
    int suppressionButtonState() const;
    void setSuppressionButtonState(int state);

    /// Told that a button was pressed, NSAlertFirstButtonReturn + its index, when the sheet is gone from the screen.
    using DidEnd = std::function<void(NSAlert *alert, int returnCode, const QString &contextInfo)>;
    /// Shows an alert in front of the window around `view`, which takes no input until a button is pressed; returns at
    /// once. The sheet owns the alert.
    ///
    /// A window has one sheet at a time: what is begun meanwhile follows in turn. It belongs to `view`: it is hidden
    /// while the view is, and one that is begun then, or while the window is minimised, waits and comes up with the
    /// view. A sheet goes unanswered, and `didEnd` is not called, when the view or `modalDelegate` is destroyed. With a
    /// null view it stands alone.
    static void beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(std::unique_ptr<NSAlert> alert,
        QWidget *view, const QObject *modalDelegate, const DidEnd &didEnd, const QString &contextInfo);

    /// Runs application-modally in front of `window`, or frontWindow() (NSWindow.h) without one, and returns the button
    /// that ended it, NSAlertFirstButtonReturn + its index. When the application ends meanwhile, it is the button that
    /// Escape presses, or else the last.
    int runModal(QWidget *window = nullptr);

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// Runs an alert as NSAlert::runModal does and returns which of its buttons ended it. An empty title is no button;
/// without any there is "OK", the default one.
LM_APPKIT int NSRunAlertPanel(const QString &title, const QString &message, const QString &defaultButton,
    const QString &alternateButton, const QString &otherButton, QWidget *window = nullptr);
