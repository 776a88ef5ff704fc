// A pane that cannot be shown gives a page that says why.

#include "CapturedLog.h"
#include "PaneBundle.h"
#include "Wait.h"
#include "host/SettingsApplication.h"

#include <QDir>
#include <QLabel>
#include <elf.h>
#include <gmock/gmock.h>

using testing::HasSubstr;

class ABrokenPane : public testing::Test
{
protected:
    void open(const QString &request)
    {
        host.start(request);
        ASSERT_TRUE(label("errorHeading")) << "no error page";
        ASSERT_TRUE(label("errorHeading")->isVisible());
    }
    QLabel *label(const char *name) { return host.window()->findChild<QLabel *>(name); }
    std::string explanation() { return text("errorExplanation"); }
    std::string detail() { return text("errorDetail"); }
    std::string text(const char *name) { return label(name) ? label(name)->text().toStdString() : std::string(); }

    /// Overwrites a byte of the pane's code.
    void patchCode(qint64 offset, char byte) const
    {
        QFile file(pane.executable());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(offset));
        ASSERT_TRUE(file.putChar(byte));
    }

    void useCode(const QString &plugIn) const
    {
        QFile::remove(pane.executable());
        ASSERT_TRUE(
            QFile::copy(qEnvironmentVariable("LUMAROO_BUILD") + "/tests/panes/" + plugIn + ".so", pane.executable()));
    }

    CapturedLog log;
    PaneBundle pane{"Sample"};
    SettingsApplication host{{pane.folder()}};
};

TEST_F(ABrokenPane, whichIsNotInstalledIsNamed)
{
    open("test.Absent");
    EXPECT_EQ(label("errorHeading")->text(), QStringLiteral("“test.Absent” cannot be shown"));
    EXPECT_THAT(explanation(), HasSubstr("No settings of this name are installed"));
}

TEST_F(ABrokenPane, whoseFolderIsGoneIsMissing)
{
    open(pane.folder() + "/Absent.prefPane");
    EXPECT_THAT(explanation(), HasSubstr("not there any more"));
    EXPECT_THAT(detail(), HasSubstr("Absent.prefPane"));
}

TEST_F(ABrokenPane, withoutInfoDictionaryIsDamaged)
{
    QFile::remove(pane.path() + "/Contents/Info.plist");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("damaged"));
    EXPECT_THAT(detail(), HasSubstr("Info.plist"));
}

TEST_F(ABrokenPane, withAnUnreadableInfoDictionaryIsDamaged)
{
    pane.bundle().writeFile("Contents/Info.plist", "<plist><dict><key>CFBundle");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("damaged"));
}

TEST_F(ABrokenPane, whoseInfoDictionaryIsRepairedOpens)
{
    pane.bundle().writeFile("Contents/Info.plist", "");
    open(pane.path());
    const PaneBundle whole("Sample");
    QFile::remove(pane.path() + "/Contents/Info.plist");
    ASSERT_TRUE(QFile::copy(whole.path() + "/Contents/Info.plist", pane.path() + "/Contents/Info.plist"));
    host.open(pane.path(), QString());
    EXPECT_TRUE(waitUntil([&] { return pane.calls().contains("didSelect shown"); }));
}

TEST_F(ABrokenPane, withoutCodeIsDamaged)
{
    QFile::remove(pane.executable());
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("damaged"));
    EXPECT_THAT(detail(), HasSubstr("Contents/Linux/TestPane"));
}

TEST_F(ABrokenPane, whoseCodeIsNoCodeIsDamaged)
{
    pane.bundle().writeFile("Contents/Linux/TestPane", "#!/bin/sh\n");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("damaged"));
}

TEST_F(ABrokenPane, whoseCodeIsCutOffIsDamaged)
{
    QFile file(pane.executable());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(4096));
    file.close();
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("damaged"));
}

TEST_F(ABrokenPane, whoseCodeCallsWhatIsNotThereIsDamaged)
{
    useCode("Unresolved");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("damaged"));
    EXPECT_THAT(detail(), HasSubstr("functionOfAnotherPlatform"));
}

TEST_F(ABrokenPane, withCodeForAnotherMachineSaysWhich)
{
    patchCode(offsetof(Elf64_Ehdr, e_machine), char(EM_S390));
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("another kind of computer"));
    EXPECT_EQ(detail(), "IBM Z");
    EXPECT_TRUE(pane.calls().isEmpty());
}

TEST_F(ABrokenPane, withCodeForAnotherWordSizeIsForAnotherMachineToo)
{
    patchCode(EI_CLASS, ELFCLASS32);
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("another kind of computer"));
}

TEST_F(ABrokenPane, thatNeedsANewerPlatformIsNotLoaded)
{
    const PaneBundle newer("Newer", {{"LMPlatformVersion", LUMAROO_PLATFORM_VERSION + 1LL}});
    open(newer.path());
    EXPECT_THAT(explanation(), HasSubstr("needs a newer version"));
    EXPECT_TRUE(newer.calls().isEmpty());
}

TEST_F(ABrokenPane, thatNeedsThisPlatformOpens)
{
    const PaneBundle same("Same", {{"LMPlatformVersion", qlonglong(LUMAROO_PLATFORM_VERSION)}});
    host.start(same.path());
    EXPECT_TRUE(waitUntil([&] { return same.calls().contains("didSelect shown"); }));
}

TEST_F(ABrokenPane, whosePlugInOffersNoPaneContainsNoSettings)
{
    useCode("NoPane");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("contains no settings"));
}

TEST_F(ABrokenPane, thatAllocatesNothingContainsNoSettings)
{
    pane.wish("alloc", "fail");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("contains no settings"));
}

TEST_F(ABrokenPane, whoseInitialiserFailsIsReleased)
{
    pane.wish("initWithBundle", "fail");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("could not start"));
    EXPECT_THAT(pane.calls(), testing::ElementsAre("initialize", "initWithBundle", "dealloc"));
}

TEST_F(ABrokenPane, whoseInitialiserThrowsIsReleasedAndLogged)
{
    pane.wish("initWithBundle", "throw");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("could not start"));
    EXPECT_EQ(log.linesContaining("TestException: initWithBundle").size(), 1);
    EXPECT_EQ(pane.calls().last(), "dealloc");
}

TEST_F(ABrokenPane, whoseClassInitialiserThrowsStaysUnusable)
{
    pane.wish("initialize", "throw");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("could not start"));
    open(pane.path());
    EXPECT_THAT(pane.calls(), testing::ElementsAre("initialize"));
}

TEST_F(ABrokenPane, withoutInterfaceFileCannotLoadItsContent)
{
    QFile::remove(pane.path() + "/Contents/Resources/Main.ui");
    open(pane.path());
    EXPECT_THAT(explanation(), HasSubstr("content could not be loaded"));
    EXPECT_EQ(detail(), "Main");
    EXPECT_EQ(pane.calls().last(), "dealloc");
}

TEST_F(ABrokenPane, leavesTheWayBackAndToOtherPanesOpen)
{
    pane.wish("initWithBundle", "fail");
    open(pane.path());
    host.showOverview();
    EXPECT_EQ(host.window()->windowTitle(), "Settings");
    const PaneBundle whole("Whole");
    host.open(whole.path(), QString());
    EXPECT_TRUE(waitUntil([&] { return whole.calls().contains("didSelect shown"); }));
}

TEST_F(ABrokenPane, isListedInTheOverviewUnderItsFileName)
{
    QFile::remove(pane.path() + "/Contents/Info.plist");
    const QList<InstalledPane> panes = installedPanes({pane.folder()});
    ASSERT_EQ(panes.size(), 1);
    EXPECT_EQ(panes.first().name, "Sample");
}
