#include "crashreporter/QBCrashReporter.h"

#include "KTXConstants.h"
#include "crashreporter/LivingReporters.h"
#include "crashreporter/ReportRequest.h"
#include "platform/appkit/alerts/NSAlert.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QDateTime>
#include <QEvent>
#include <QKeyEvent>
#include <QScopeGuard>

QBCrashReporter::~QBCrashReporter()
{
    connection_.reset();
}

QBCrashReporter *QBCrashReporter::initWithLogString(const QString &report)
{
    pendingReport() = report;
    // A window that comes up later is not to take it for its own.
    const auto clear = qScopeGuard([] { pendingReport().reset(); });
    std::unique_ptr<QBCrashReporter> reporter(new QBCrashReporter);
    return reporter->QBNibOwner::init() ? keepAlive(std::move(reporter)) : nullptr;
}

QBCrashReporter *QBCrashReporter::initInFeedbackMode()
{
    std::unique_ptr<QBCrashReporter> reporter(new QBCrashReporter);
    return reporter->init() ? keepAlive(std::move(reporter)) : nullptr;
}

bool QBCrashReporter::init()
{
    feedbackMode_ = true;
    return QBNibOwner::init();
}

InterfaceOwner QBCrashReporter::interfaceOwner()
{
    InterfaceOwner owner = QBNibOwner::interfaceOwner();
    owner.outlets = outlets();
    owner.actions = {
        {QStringLiteral("sendCrashReport:"), [this](QObject *sender) { sendCrashReport(sender); }},
        {QStringLiteral("remindMeLater:"), [this](QObject *sender) { remindMeLater(sender); }},
        {QStringLiteral("discardCrashReport:"), [this](QObject *sender) { discardCrashReport(sender); }},
    };
    return owner;
}

QList<OutletEntry> QBCrashReporter::outlets()
{
    return {
        outletEntry(QStringLiteral("reportWindow"), reportWindow_),
        outletEntry(QStringLiteral("informationField"), informationField_),
        outletEntry(QStringLiteral("crashLogField"), crashLogField_),
        outletEntry(QStringLiteral("explanationField"), explanationField_),
        outletEntry(QStringLiteral("progressIndicator"), progressIndicator_),
        outletEntry(QStringLiteral("sendButton"), sendButton_),
        outletEntry(QStringLiteral("remindButton"), remindButton_),
        outletEntry(QStringLiteral("discardButton"), discardButton_),
        outletEntry(QStringLiteral("switchTabView"), switchTabView_),
    };
}

void QBCrashReporter::sendCrashReport(QObject *)
{
    const QString text = string(informationField_) + reportDivider + string(crashLogField_);
    const QUrl address(localized(QStringLiteral("CRASH_REPORT_CGI_URL")), QUrl::StrictMode);
    startAnimation(progressIndicator_);
    setButtonsEnabled(false);
    connection_ = NSURLConnection::connectionWithRequestDelegate(requestWithReport(address, text), this);
}

void QBCrashReporter::setButtonsEnabled(bool enabled)
{
    setEnabled(sendButton_, enabled);
    setEnabled(remindButton_, enabled);
    setEnabled(discardButton_, enabled);
    isSending_ = !enabled;
}

void QBCrashReporter::remindMeLater(QObject *)
{
    closeWindow();
}

void QBCrashReporter::discardCrashReport(QObject *)
{
    if (!feedbackMode_)
        storeDateOfReport();
    closeWindow();
}

void QBCrashReporter::closeWindow()
{
    setHidden(reportWindow_, true);
    if (feedbackMode_)
        letGo(this);
}

bool QBCrashReporter::eventFilter(QObject *, QEvent *event)
{
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (event->type() != QEvent::Close && !isEscape)
        return false;
    event->setAccepted(isEscape);
    if (!isSending_)
        runAtBoundary("remindMeLater:", [this] { remindMeLater(nullptr); });
    return true;
}

void QBCrashReporter::storeDateOfReport() const
{
    // Whatever becomes of it, the window is to close.
    runAtBoundary("storing the date of a crash report", [this] {
        CFPreferencesSetAppValue(QBCrashReporterLastCrashReportDate, QDateTime::currentDateTimeUtc(), appID_);
        CFPreferencesAppSynchronize(appID_);
    });
}

void QBCrashReporter::connectionDidFinishLoading(NSURLConnection *)
{
    connection_.reset();
    if (!feedbackMode_)
        storeDateOfReport();
    performShowFinishedMessageOnMainThread(nullptr);
}

void QBCrashReporter::connectionDidFailWithError(NSURLConnection *, const NSError &error)
{
    connection_.reset();
    performShowFinishedMessageOnMainThread(std::make_shared<NSError>(error));
}

void QBCrashReporter::performShowFinishedMessageOnMainThread(const std::shared_ptr<const NSError> &error)
{
    const auto perform = [this, error] {
        runAtBoundary("showFinishedMessage:", [&] { showFinishedMessage(error.get()); });
    };
    QMetaObject::invokeMethod(this, perform, Qt::QueuedConnection);
}

void QBCrashReporter::showFinishedMessage(const NSError *error)
{
    if (error) {
        const QString title = feedbackMode_ ? QStringLiteral("COULDNT_SEND_FEEDBACK_ERROR")
                                            : QStringLiteral("COULDNT_SEND_CRASH_REPORT_ERROR");
        NSRunAlertPanel(localized(title), error->localizedDescription,
            localized(QStringLiteral("COULDNT_SEND_CRASH_REPORT_ERROR_OK")), {}, {}, reportWindow_.get());
    }
    setHidden(reportWindow_, true);
    letGo(this);
}

QString QBCrashReporter::localized(const QString &key) const
{
    return appBundle_->localizedStringForKeyValueTable(key, QString(), QStringLiteral("QBCrashReporter"));
}
