#pragma once

#include "platform/appkit/Export.h"

#include <QString>
#include <memory>

class NSBundle;

enum NSAlertReturn {
    NSAlertFirstButtonReturn = 1000,
    NSAlertSecondButtonReturn = 1001,
    NSAlertThirdButtonReturn = 1002
};

/// A message with an icon, buttons from right to left, and an optional help button.
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

    /// Runs application-modally and returns the button that ended it, NSAlertFirstButtonReturn + its index. When the
    /// application ends meanwhile, it is the button that Escape presses, or else the last.
    int runModal();

private:
    class Private;
    std::unique_ptr<Private> d;
};
