// Reports whose end is not as it should be: beside another window, with settings that fail, from another thread.

#include "OpenAlert.h"
#include "ReportServer.h"
#include "ReportWindow.h"
#include "Wait.h"

#include "crashreporter/LivingReporters.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/system/NSLog.h"

#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace {

class ReportFailure : public ReportWindow
{
protected:
    /// From now on whoever reads or writes the settings is thrown an exception of the platform's.
    static void letSettingsFail()
    {
        const QString file = qEnvironmentVariable("XDG_CONFIG_HOME") + "/lumaroo/com.quorvane.Lumaroo.plist";
        QDir().mkpath(QFileInfo(file).path());
        QFile damaged(file);
        ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
        damaged.write("no property list");
        setLogWriter([](const QString &line) {
            if (line.contains("does not parse"))
                throw NSException("NSInternalInconsistencyException", "the settings fail");
            logged() += line;
        });
    }
    static QStringList &logged()
    {
        static QStringList lines;
        return lines;
    }
};

} // namespace

TEST_F(ReportFailure, anAlertStandsOnItsOwnWindowAndOutlivesAnother)
{
    for (const bool isFirst : {true, false}) {
        const QPointer<QBCrashReporter> first = openCrash();
        const QPointer<QDialog> firstWindow = window();
        const QPointer<QBCrashReporter> second = openCrash();
        const QPointer<QBCrashReporter> failing = isFirst ? first : second;
        const QPointer<QBCrashReporter> other = isFirst ? second : first;
        const QPointer<QDialog> itsWindow = isFirst ? firstWindow.data() : window();
        bool wasRead = false;
        const AtAlert reader([&] {
            QTimer::singleShot(0, qApp, [&] {
                ASSERT_TRUE(openAlert());
                EXPECT_EQ(openAlert()->parentWidget(), itsWindow);
                letGo(other);
                EXPECT_TRUE(waitUntil([&] { return !other; }));
                ASSERT_TRUE(openAlert()) << "it has not been read yet";
                wasRead = true;
                openAlert()->findChild<QPushButton *>()->click();
            });
        });
        failing->connectionDidFailWithError(nullptr, NSError{"domain", 7, "what went wrong"});
        EXPECT_TRUE(waitUntil([&] { return !failing && !itsWindow; }));
        EXPECT_TRUE(wasRead);
    }
    EXPECT_EQ(livingReporters(), 0);
}

TEST_F(ReportFailure, aDateThatCannotBeStoredKeepsNoWindowOpen)
{
    const ReportServer server;
    setAddress(server.url());
    ASSERT_TRUE(openCrash());
    letSettingsFail();
    click("sendButton");
    EXPECT_TRUE(reporterGoes());
    setLogWriter({});
    EXPECT_EQ(ReportFailure::logged(),
        QStringList(
            "lumaroo: storing the date of a crash report: NSInternalInconsistencyException: the settings fail"));
}

TEST_F(ReportFailure, aSuccessThatIsToldInAnotherThreadEndsTheReportInThisOne)
{
    ASSERT_TRUE(openCrash());
    const std::unique_ptr<QThread> thread(QThread::create([this] { reporter->connectionDidFinishLoading(nullptr); }));
    thread->start();
    thread->wait();
    EXPECT_TRUE(isOpen()) << "the window belongs to this thread";
    EXPECT_TRUE(rememberedDate().isValid()) << "before the thread goes on";
    EXPECT_TRUE(reporterGoes());
}

TEST_F(ReportFailure, aFailureThatIsToldInAnotherThreadIsShownByThisOne)
{
    ASSERT_TRUE(openCrash());
    QStringList texts;
    const AtAlert reader([&texts] {
        QTimer::singleShot(0, qApp, [&texts] {
            ASSERT_TRUE(alertComesUp());
            texts = textsOfAlert();
            openAlert()->findChild<QPushButton *>()->click();
        });
    });
    const std::unique_ptr<QThread> thread(QThread::create([this] {
        reporter->connectionDidFailWithError(nullptr, NSError{"domain", 7, "what went wrong"});
    }));
    thread->start();
    thread->wait();
    EXPECT_FALSE(openAlert());
    EXPECT_TRUE(reporterGoes());
    EXPECT_EQ(texts, QStringList({"No report sent", "what went wrong"}));
    EXPECT_FALSE(rememberedDate().isValid());
}
