// What the report window shows when it comes up.

#include "AccountsServiceStandIn.h"
#include "ReportWindow.h"
#include "Wait.h"

#include "crashreporter/LivingReporters.h"
#include "crashreporter/QBSystemInformation.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/foundation/accounts/NSFullUserName.h"
#include "platform/foundation/propertylists/Description.h"

#include <QLabel>
#include <QTabWidget>

namespace {

class ReportContent : public ReportWindow
{
protected:
    QString explanation() const { return part<QLabel>("explanationField")->text(); }
    QString title(const char *button) const { return part<QPushButton>(button)->text(); }
    QString tab(int index) const { return part<QTabWidget>("switchTabView")->tabText(index); }
};

} // namespace

TEST_F(ReportContent, theButtonsAreTitledInBothModes)
{
    for (const bool isCrash : {true, false}) {
        ASSERT_TRUE(isCrash ? openCrash() : openFeedback());
        EXPECT_EQ(title("sendButton"), "Send it");
        EXPECT_EQ(title("remindButton"), "Later");
        EXPECT_EQ(title("discardButton"), "Never");
        click("discardButton");
    }
}

TEST_F(ReportContent, aCrashIsExplainedWithTheNameOfThePaneEachTime)
{
    ASSERT_TRUE(openCrash());
    EXPECT_EQ(explanation(), "Lumaroo crashed. Poor Lumaroo.");
}

TEST_F(ReportContent, feedbackIsExplainedWithTheNameOfThePaneEachTime)
{
    ASSERT_TRUE(openFeedback());
    EXPECT_EQ(explanation(), "Lumaroo listens. Write to Lumaroo.");
}

TEST_F(ReportContent, theMessageNamesTheUserEachTimeAndSaysThatNoAddressIsKnown)
{
    const QString user = NSFullUserName();
    ASSERT_FALSE(user.isEmpty());
    ASSERT_TRUE(openCrash());
    EXPECT_EQ(text("informationField"), QString("crash of %1, %1 at nowhere, nowhere").arg(user));
    click("discardButton");
    ASSERT_TRUE(openFeedback());
    EXPECT_EQ(text("informationField"), QString("words of %1, %1 at nowhere, nowhere").arg(user));
}

TEST_F(ReportContent, theMessageNamesTheUsersAddressEachTime)
{
    AccountsServiceStandIn service;
    service.setEmail("someone@lumaroo.example");
    // On a machine that is busy enough the service may be late for the first window.
    EXPECT_TRUE(waitUntil([this] {
        openFeedback();
        const QString message = text("informationField");
        click("discardButton");
        return message.endsWith(" at someone@lumaroo.example, someone@lumaroo.example");
    }));
    service.setEmail("");
    ASSERT_TRUE(openCrash());
    EXPECT_TRUE(text("informationField").endsWith(" at nowhere, nowhere"));
}

TEST_F(ReportContent, aCrashReportStandsOnTheSecondPageToTheLastCharacter)
{
    const QString report = QStringLiteral("a\u00a0b\r\nc\rd\u2028e\u2029f\n\n") + QChar(0) + QStringLiteral("\tg");
    ASSERT_TRUE(openCrash(report));
    EXPECT_EQ(text("crashLogField"), report);
    EXPECT_FALSE(part("remindButton")->isHidden());
    EXPECT_EQ(tab(1), "Crash &report");
}

TEST_F(ReportContent, anEmptyReportIsAReport)
{
    ASSERT_TRUE(openCrash(QString("")));
    EXPECT_EQ(text("crashLogField"), "");
    EXPECT_TRUE(explanation().contains("crashed"));
}

TEST_F(ReportContent, aReportIsShownOnceAndNotInTheNextWindow)
{
    ASSERT_TRUE(openCrash("only once"));
    click("remindButton");
    ASSERT_TRUE(openFeedback());
    EXPECT_FALSE(text("crashLogField").contains("only once"));
    EXPECT_TRUE(explanation().contains("listens"));
}

TEST_F(ReportContent, feedbackHasNoReminderAndTellsOfMachineAndSystem)
{
    store.set("SomeKey", QVariant("some value"));
    ASSERT_TRUE(openFeedback());
    EXPECT_TRUE(part("remindButton")->isHidden());
    EXPECT_FALSE(part("sendButton")->isHidden());
    EXPECT_FALSE(part("discardButton")->isHidden());
    EXPECT_EQ(tab(1), "This machine");
    EXPECT_EQ(tab(0), "Your &message");
    const QStringList lines = text("crashLogField").split('\n');
    // The host's version beside the pane's name.
    EXPECT_EQ(lines.value(0), "Application: Lumaroo 77");
    const QString machine = QBMachineName();
    EXPECT_EQ(lines.value(1), "Model: " + (machine.isNull() ? QString("(null)") : machine));
    const quint32 cores = QBCountCores();
    const QString prefix = cores == 1 ? QString() : QString("%1x ").arg(cores);
    EXPECT_EQ(lines.value(2),
        "CPU Speed: " + prefix + QString::asprintf("%.2f", double(float(QBClockSpeed()) / 1000.0F)) + " GHz");
    EXPECT_EQ(lines.value(3), "System Version: " + QBSystemVersionString());
    EXPECT_EQ(lines.value(4), "");
    EXPECT_EQ(lines.value(5), "Preferences:");
    EXPECT_EQ(lines.mid(6).join('\n'), description(QVariantMap{{"SomeKey", "some value"}}));
}

TEST_F(ReportContent, aMachineWithoutAnswersIsToldOfAllTheSame)
{
    const QTemporaryDir empty;
    qputenv("LUMAROO_SYSTEM_ROOT", QFile::encodeName(empty.path()));
    const bool isOpen = openFeedback() != nullptr;
    qunsetenv("LUMAROO_SYSTEM_ROOT");
    ASSERT_TRUE(isOpen);
    const QStringList lines = text("crashLogField").split('\n');
    EXPECT_EQ(lines.value(2), "CPU Speed: 0.00 GHz");
    EXPECT_EQ(lines.value(3), "System Version: 0.0.0");
}

TEST_F(ReportContent, withoutTheInterfaceFileThereIsNoWindowAndOneLoggedLine)
{
    removeInterfaceFile();
    const CapturedLog log;
    EXPECT_EQ(openCrash("lost"), nullptr);
    EXPECT_EQ(log.lines(), QStringList("QBCrashReporter: Couldn't find NIB file \"QBCrashReporter.nib\"."));
    EXPECT_EQ(livingReporters(), 0);
    EXPECT_EQ(window(), nullptr);
}

TEST_F(ReportContent, aReportWhoseWindowIsMissingIsNotShownByALaterOne)
{
    {
        const CapturedLog log;
        QFile file(bundle.path() + "/Contents/Resources/QBCrashReporter.ui");
        ASSERT_TRUE(file.rename(file.fileName() + ".aside"));
        EXPECT_EQ(openCrash("lost"), nullptr);
        ASSERT_TRUE(file.rename(bundle.path() + "/Contents/Resources/QBCrashReporter.ui"));
    }
    ASSERT_TRUE(openFeedback());
    EXPECT_FALSE(text("crashLogField").contains("lost"));
    EXPECT_TRUE(part("remindButton")->isHidden());
}
