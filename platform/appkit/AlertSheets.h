#pragma once

#include "platform/appkit/AlertWindow.h"

#include <deque>

/// An alert that was begun as a sheet.
struct AlertSheet
{
    AlertContent content;
    const QObject *delegate = nullptr; ///< with its end the sheet goes, unanswered; null for none
    std::function<void(const AlertWindow &)> didEnd; ///< a button was pressed; the window is gone from the screen
};

/// The sheets of one window: one at a time, in the order in which they were begun, in front of the middle of the
/// window, which takes no input meanwhile. They are on screen only while the window is.
class AlertSheets : public QObject
{
    Q_OBJECT

public:
    /// Those of the window around `view`; of no window, for a null view. They go with the window, unanswered.
    static AlertSheets *ofWindow(QWidget *view);

    /// Returns at once. The sheet comes up when those before it are closed and the window is on screen.
    void begin(AlertSheet sheet);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit AlertSheets(QWidget *window);
    bool canShow() const;
    void showFirst();
    void takeDown();
    void end();
    void dropSheetsOf(const QObject *delegate);
    void watchWindow();

    QPointer<QWidget> window_;
    bool hasWindow_;
    std::deque<AlertSheet> sheets_; // the first one is on screen or comes next
    QPointer<AlertWindow> shown_;
};
