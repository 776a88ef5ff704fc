#pragma once

#include "crashreporter/QBNibOwner.h"
#include "platform/appkit/controls/NSProgressIndicator.h"
#include "platform/appkit/controls/NSTextView.h"
#include "platform/appkit/controls/Outlet.h"
#include "platform/appkit/web/NSURLConnection.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <memory>
#include <optional>

class NSBundle;

/// When the last crash was dealt with: reported, or discarded. Of the agent's domain; a date.
inline const QString QBCrashReporterLastCrashReportDate = QStringLiteral("QBCrashReporterLastCrashReportDate");

/// The window that shows a crash report, or a message to the makers, and sends what it shows when the user says so.
///
/// A reporter keeps itself alive: one that has sent, or has shown that it could not, until its window is closed; one in
/// feedback mode until its window is closed, however; one whose report was put off or discarded, and any that is there
/// then, until the application object goes. Main thread only.
class QBCrashReporter : public QBNibOwner, public NSURLConnectionDelegate
{
    Q_OBJECT

public:
    /// Shows a crash report. Null, with a logged line, where the interface file is missing.
    static QBCrashReporter *initWithLogString(const QString &report);
    /// Shows a message to the makers, with what machine and system this is. Null as above.
    static QBCrashReporter *initInFeedbackMode();
    ~QBCrashReporter() override;

    // Actions
    void sendCrashReport(QObject *sender);
    void remindMeLater(QObject *sender);
    void discardCrashReport(QObject *sender);

    InterfaceOwner interfaceOwner() override;
    void awakeFromNib() override;
    void connectionDidFinishLoading(NSURLConnection *connection) override;
    void connectionDidFailWithError(NSURLConnection *connection, const NSError &error) override;
    /// What came of sending, null for a success. Tells of an error and waits until that is read; then the window closes
    /// and the reporter goes.
    void showFinishedMessage(const NSError *error);

protected:
    /// Closing the window by its own means is to put the report off.
    bool eventFilter(QObject *window, QEvent *event) override;

private:
    QBCrashReporter() = default;
    bool init() override;
    /// The report whose window is coming up; none in feedback mode.
    static std::optional<QString> &pendingReport();
    QList<OutletEntry> outlets();
    void showTexts();
    void showSystemInformation();
    void orderFront();
    void setButtonsEnabled(bool enabled);
    void closeWindow();
    void storeDateOfReport() const;
    void performShowFinishedMessageOnMainThread(const std::shared_ptr<const NSError> &error);
    QString localized(const QString &key) const;

    Outlet<QDialog> reportWindow_;
    Outlet<NSTextView> informationField_, crashLogField_;
    Outlet<QLabel> explanationField_;
    Outlet<NSProgressIndicator> progressIndicator_;
    Outlet<QPushButton> sendButton_, remindButton_, discardButton_;
    Outlet<QTabWidget> switchTabView_;
    std::unique_ptr<NSURLConnection> connection_;
    bool feedbackMode_ = false;
    bool isSending_ = false;
    QString appID_;
    NSBundle *appBundle_ = nullptr;
};
