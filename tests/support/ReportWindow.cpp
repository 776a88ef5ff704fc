#include "ReportWindow.h"

#include "Wait.h"

#include "crashreporter/LivingReporters.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QApplication>
#include <QFile>

namespace {

const QString interfaceFile = QStringLiteral("Contents/Resources/QBCrashReporter.ui");

QByteArray builtFile(const QString &inside)
{
    QFile file(qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane/") + inside);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    return file.readAll();
}

QList<QDialog *> shownReportWindows()
{
    QList<QDialog *> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"reportWindow" && window->isVisible())
            windows += qobject_cast<QDialog *>(window);
    }
    return windows;
}

} // namespace

ReportWindow::ReportWindow()
{
    store.clear();
    bundle.writeInfo({{"CFBundleIdentifier", "com.quorvane.Lumaroo"}, {"CFBundleVersion", "5"}});
    bundle.writeFile(interfaceFile, builtFile(interfaceFile));
    setTexts({});
    NSBundle::bundleWithPath(bundle.path())->setLoaded();
}

ReportWindow::~ReportWindow()
{
    for (const QPointer<QBCrashReporter> &opened : opened_) {
        if (opened)
            letGo(opened);
    }
    runPendingEvents();
    store.clear();
}

QMap<QString, QString> ReportWindow::testTexts()
{
    return {
        {"WANT_TO_SEND_CRASH_SEND", "Send it"},
        {"WANT_TO_SEND_CRASH_SEND_LATER", "Later"},
        {"WANT_TO_SEND_CRASH_DONT_SEND", "Never"},
        {"CRASH_EXPLANATION_TEXT", "%%APPNAME crashed. Poor %%APPNAME."},
        {"FEEDBACK_EXPLANATION_TEXT", "%%APPNAME listens. Write to %%APPNAME."},
        {"CRASH_MESSAGE_TEXT", "crash of %%LONGUSERNAME, %%LONGUSERNAME at %%EMAILADDRESS, %%EMAILADDRESS"},
        {"FEEDBACK_MESSAGE_TEXT", "words of %%LONGUSERNAME, %%LONGUSERNAME at %%EMAILADDRESS, %%EMAILADDRESS"},
        {"MISSING_EMAIL_ADDRESS", "nowhere"},
        {"SYSTEM_INFO_TAB_NAME", "This machine"},
        {"CRASH_REPORT_CGI_URL", "http://127.0.0.1:1/"},
        {"COULDNT_SEND_CRASH_REPORT_ERROR", "No report sent"},
        {"COULDNT_SEND_FEEDBACK_ERROR", "No words sent"},
        {"COULDNT_SEND_CRASH_REPORT_ERROR_OK", "Alas"},
    };
}

void ReportWindow::setTexts(const QMap<QString, QString> &texts)
{
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        texts_[text.key()] = text.value();
    bundle.writeStringTable(QStringLiteral("en"), QStringLiteral("QBCrashReporter"), texts_);
}

void ReportWindow::removeInterfaceFile() const
{
    QFile::remove(bundle.path() + u'/' + interfaceFile);
}

QBCrashReporter *ReportWindow::opened(QBCrashReporter *(*open)(const QString &), const QString &report)
{
    const QList<QDialog *> before = shownReportWindows();
    reporter = open(report);
    opened_ += reporter;
    window_ = nullptr;
    for (QDialog *window : shownReportWindows()) {
        if (!before.contains(window))
            window_ = window;
    }
    return reporter;
}

QBCrashReporter *ReportWindow::openCrash(const QString &report)
{
    return opened(&QBCrashReporter::initWithLogString, report);
}

QBCrashReporter *ReportWindow::openFeedback()
{
    return opened([](const QString &) { return QBCrashReporter::initInFeedbackMode(); }, {});
}

bool ReportWindow::reporterGoes() const
{
    return waitUntil([this] { return !reporter && !window_; });
}
