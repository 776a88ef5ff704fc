#pragma once

#include <QDialog>
#include <QStringList>

// The alert or sheet on screen, as its user sees and answers it.

/// It, or null.
QDialog *openAlert();
/// Waits until one has the keyboard.
bool alertComesUp();
/// Waits until there is none and `window` has the keyboard again.
bool alertGoesBackTo(const QWidget *window);
/// Whether a window on screen is there without one, once what is pending has been done.
bool noAlertComesUpOn(const QWidget *window);
/// Its message and its information.
QStringList textsOfAlert();
/// A part of it: "message", "information", "icon", "suppression", "help".
template <typename Part = QWidget>
Part *partOfAlert(const char *name)
{
    return openAlert() ? openAlert()->findChild<Part *>(QLatin1StringView(name)) : nullptr;
}
/// Clicks on the suppression check box and waits until it is ticked.
void tickAlert();
/// Clicks on a view, really, at the start of its text.
void clickOn(const QWidget *view);
