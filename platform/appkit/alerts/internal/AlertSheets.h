#pragma once

#include "platform/appkit/alerts/internal/AlertWindow.h"

#include <deque>

/// An alert that was begun as a sheet.
struct AlertSheet
{
    AlertContent content;
    const QObject *delegate = nullptr; ///< with its end the sheet goes, unanswered; null for none
    std::function<void(const AlertWindow &)> didEnd; ///< a button was pressed; the window is gone from the screen
};

/// The sheets of one view, in the order in which they were begun, in front of the middle of the view's window, which
/// takes no input meanwhile. They are on screen only while the view is; a window has one sheet at a time, whichever of
/// its views it belongs to.
class AlertSheets : public QObject
{
    Q_OBJECT

public:
    /// Those of `view`, which stand alone for a null view. They go with the view, unanswered.
    static AlertSheets *ofView(QWidget *view);
    ~AlertSheets() override;

    /// Returns at once. The sheet comes up when those before it are closed and the view is on screen.
    void begin(AlertSheet sheet);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit AlertSheets(QWidget *view);
    bool canShow() const;
    void showFirst();
    void showOnWindow();
    static void showNextOn(const QWidget *window);
    void takeDown();
    void end();
    void dropSheetsOf(const QObject *delegate);
    void watchWindow();
    QWidget *window() const { return view_ ? view_->window() : nullptr; }

    QPointer<QWidget> view_;
    bool hasView_;
    std::deque<AlertSheet> sheets_; // the first one is on screen or comes next
    QPointer<AlertWindow> shown_;
};
