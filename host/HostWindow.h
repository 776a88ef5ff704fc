#pragma once

#include "host/PaneCatalogue.h"
#include "host/PaneFailure.h"
#include "host/PaneStage.h"

#include <QHash>
#include <QPointer>
#include <QWidget>
#include <optional>

class ErrorPage;
class HostHeader;
class NoticeBar;
class Overview;
class QStackedWidget;

/// The host's one window: a header with the way back, below it what there is to tell of the window as a whole, and
/// below that the overview, a pane or the error page. It keeps its size between them.
class HostWindow : public QWidget, public PaneStage
{
    Q_OBJECT

public:
    explicit HostWindow(QSize rememberedSize);

    void showOverview(const QList<InstalledPane> &panes, const QString &currentPath);
    void showError(const InstalledPane &pane, const PaneFailureReport &report);
    void setTitle(const InstalledPane &pane);
    /// Puts the keyboard into the search of what is shown: of the overview, else of the pane.
    void focusSearch();
    /// Whether there is a way back to the overview. Without other panes it would show nothing that is not on screen.
    void offerOverview(bool offered);
    /// Between the header and what is shown.
    NoticeBar *noticeBar() { return noticeBar_; }
    /// Shows the window, before all others; `activationToken` is what the starting desktop gave for that, or empty.
    void bringToFront(const QString &activationToken);

    void showView(QWidget *view, std::function<void()> onScreen) override;
    void hideView(QWidget *view) override;

    /// The size it has or had before it was maximised, for the next run.
    QSize sizeToRemember() const { return normalSize_; }
    /// From now on closing it is nobody's question.
    void allowClosing() { mayClose_ = true; }

Q_SIGNALS:
    void paneOpened(const QString &path);
    void backRequested();
    void searchRequested();
    void closeRequested();
    /// A modal window that blocked this one is gone.
    void unblocked();
    /// The user turns to the window.
    void activated();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void addShortcuts();
    void showPage(QWidget *page, bool withHeader);
    void addView(QWidget *view);
    void growFor(QWidget *view);
    void showIcon();
    bool isOnScreen() const;
    void tellWhenOnScreen();
    void showWhatWasSearched();

    QStackedWidget *stack_;
    HostHeader *header_;
    NoticeBar *noticeBar_;
    Overview *overview_ = nullptr;
    ErrorPage *errorPage_ = nullptr;
    QHash<QWidget *, QPointer<QWidget>> lastFocus_;
    std::optional<InstalledPane> iconOwner_; // whose icon the window is to bear once it is on screen
    QString searched_; // in the overview, when it opened the pane that comes up
    QSize normalSize_;
    bool sizeChosen_;
    bool mayClose_ = false;
    std::function<void()> onScreen_;
};
