// The notes of a build, which come up by themselves after an update, as the pane's user sees them.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/alerts/NSAlert.h"
#include "platform/appkit/web/WebView.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "updater/core/UpdateRecord.h"

#include <QDialog>
#include <QTest>
#include <linux/input-event-codes.h>

namespace {

class BuildNotes : public PaneOnRealStore
{
protected:
    BuildNotes()
    {
        store().set(KTXFirstLaunch, QVariant(true));
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, updaterDomain);
    }

    void letBuildBe(const QString &version) const { changeInfo({{"CFBundleVersion", version}}); }
    static void letLastNotesBeOf(int build) { UpdateRecord().noteBuildOfNotes(build); }
    QDialog *notes() { return control<QDialog>("betaWindow"); }
    /// The pane's view comes into the host's window and shows there.
    void show()
    {
        pane().willSelect();
        pane().mainView()->setParent(&host);
        pane().mainView()->show();
        host.resize(pane().mainView()->sizeHint());
        host.show();
        EXPECT_TRUE(waitUntil([this] { return hasKeyboard(&host) || notes()->isVisible(); }));
        pane().didSelect();
        runPendingEvents();
    }
    bool comeUp()
    {
        return waitUntil([this] { return notes()->isVisible(); });
    }
    void leave()
    {
        pane().mainView()->hide();
        runPendingEvents();
    }
    bool isGone()
    {
        return waitUntil([this] { return !notes()->isVisible() && hasKeyboard(&host); });
    }

    QWidget host;
};

} // namespace

TEST_F(BuildNotes, openOnceAtTheFirstShowingAfterAnUpdate)
{
    letLastNotesBeOf(56);
    letBuildBe("57");
    show();
    EXPECT_TRUE(comeUp());
    EXPECT_EQ(UpdateRecord().buildOfNotes(), 57);
    notes()->close();
    ASSERT_TRUE(isGone());
    leave();
    show();
    EXPECT_FALSE(notes()->isVisible());
    destroyPane();
    show();
    EXPECT_FALSE(notes()->isVisible());
}

TEST_F(BuildNotes, tellWhatIsNewInTheBuild)
{
    letLastNotesBeOf(1);
    show();
    ASSERT_TRUE(comeUp());
    auto *page = control<WebView>("betaNotesView");
    EXPECT_TRUE(page->toPlainText().startsWith("What is new in Lumaroo 1.0"));
    EXPECT_TRUE(notes()->isWindow());
    EXPECT_EQ(notes()->windowTitle(), "What is new in Lumaroo");
    EXPECT_FALSE(notes()->isModal());
}

TEST_F(BuildNotes, stayAwayOnAFirstInstallation)
{
    letBuildBe("57");
    show();
    EXPECT_FALSE(notes()->isVisible());
    EXPECT_EQ(UpdateRecord().buildOfNotes(), 57) << "the next build is an update";
}

TEST_F(BuildNotes, stayAwayForABuildThatIsNoNewer)
{
    for (const char *version : {"57", "56", "12b"}) {
        letLastNotesBeOf(57);
        letBuildBe(version);
        show();
        EXPECT_FALSE(notes()->isVisible()) << version;
        EXPECT_EQ(UpdateRecord().buildOfNotes(), 57);
        destroyPane();
    }
}

TEST_F(BuildNotes, stayAwayWhereTheirBuildsNotesAreHidden)
{
    letLastNotesBeOf(56);
    letBuildBe("57b");
    store().set("hideBetaNotes57", true);
    show();
    EXPECT_FALSE(notes()->isVisible());
}

TEST_F(BuildNotes, comeUpWhereThoseOfAnotherBuildAreHidden)
{
    letLastNotesBeOf(56);
    letBuildBe("57");
    store().set("hideBetaNotes56", true);
    store().set("hideBetaNotes57", false);
    show();
    EXPECT_TRUE(comeUp());
}

TEST_F(BuildNotes, areHiddenByTheirCheckBoxWithoutAFlush)
{
    letLastNotesBeOf(56);
    letBuildBe("57");
    show();
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(notes()); }));
    pressKey(KEY_D, {KEY_LEFTALT});
    ASSERT_TRUE(waitUntil([this] { return state(control("hideBetaNotesButton")) == NSOnState; }));
    EXPECT_EQ(CFPreferencesCopyAppValue("hideBetaNotes57", KTXLMAppID), QVariant(true));
    EXPECT_FALSE(store().domain().contains("hideBetaNotes57"));
}

TEST_F(BuildNotes, goWithTheirButtonOrEscape)
{
    for (const int key : {KEY_ESC, KEY_C}) {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, updaterDomain);
        letLastNotesBeOf(1);
        show();
        ASSERT_TRUE(waitUntil([this] { return hasKeyboard(notes()); }));
        pressKey(key, key == KEY_C ? QList<int>{KEY_LEFTALT} : QList<int>{});
        EXPECT_TRUE(isGone());
        destroyPane();
    }
}

TEST_F(BuildNotes, goWithThePane)
{
    letLastNotesBeOf(1);
    show();
    ASSERT_TRUE(comeUp());
    leave();
    EXPECT_TRUE(isGone());
}

TEST_F(BuildNotes, takeNoKeyFromASheet)
{
    letLastNotesBeOf(1);
    auto alert = std::make_unique<NSAlert>();
    alert->setMessageText("First things first");
    NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(
        std::move(alert), pane().mainView(), &pane(), {}, {});
    pane().mainView()->setParent(&host);
    host.show();
    pane().mainView()->show();
    ASSERT_TRUE(waitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
    QPointer<QWidget> sheet = QApplication::activeModalWidget();
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(sheet); }));
    EXPECT_FALSE(notes()->isVisible()) << "they wait";
    pressKey(KEY_ESC);
    ASSERT_TRUE(waitUntil([&] { return !sheet || !sheet->isVisible(); })) << "the key was the sheet's";
    EXPECT_TRUE(waitUntil([this] { return notes()->isVisible(); }));
}
