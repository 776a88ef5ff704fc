#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>

// The alert or sheet on screen, as its user sees and answers it.

/// It, or null.
QDialog *openAlert();
/// Waits until one has the keyboard.
bool alertComesUp();
/// Waits until there is none and `window` has the keyboard again.
bool alertGoesBackTo(const QWidget *window);
/// Whether a window on screen is there without one, once what is pending has been done.
bool noAlertComesUpOn(const QWidget *window);
/// Looks at something at the moment at which an alert comes up, before the operation that asked for it goes on.
class AtAlert : public QObject
{
public:
    explicit AtAlert(std::function<void()> look);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    std::function<void()> look_;
};
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
/// Scrolls the pages around a view until it shows.
void bringIntoSight(const QWidget *view);
/// Clicks on a view, which is brought into sight, really, at the start of its text.
void clickOn(const QWidget *view);
