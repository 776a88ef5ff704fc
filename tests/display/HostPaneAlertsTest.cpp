// Warnings of the real pane in the host, one while another is open.

#include "BusRecorder.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneBundle.h"
#include "Wait.h"
#include "host/HostState.h"
#include "host/SettingsApplication.h"
#include "platform/appkit/controls/Controls.h"

#include "KTXConstants.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <QTimer>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

constexpr int onlyAlt = 0x800;
constexpr int hotKeyPage = 1;
const QString conflictsAtOpening =
    QStringLiteral("Please change the marked HotKeys in the programs using them before setting them in Lumaroo.");
const QString conflictsOnPage = QStringLiteral(
    "The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.");
const QString lastModifier = QStringLiteral("At least one modifier must be set");
const QString quitDespiteConflicts = QStringLiteral("Quit while key conflicts exist?");

class WarningsInTheHost : public testing::Test
{
protected:
    WarningsInTheHost()
    {
        // As settings that were open before, with right and down on one key.
        const QVariantMap down{{KTXKeycode, QStringLiteral("125")}};
        store({{KTXFirstLaunch, true}, {KTXModifierMask, qlonglong(onlyAlt)}, {KTXRightPref, down}});
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, HostState::domain);
    }
    ~WarningsInTheHost() override { store({}); }

    static void store(const QVariantMap &domain)
    {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(domain, KTXLMAppID);
    }
    static QVariantMap domain() { return NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID); }
    /// The pane, with what it says at its opening up.
    void start()
    {
        host.start(pane);
        ASSERT_TRUE(comesUp(conflictsAtOpening));
        before = domain();
    }
    /// Whether the alert with this message or information has the keyboard.
    static bool comesUp(const QString &text)
    {
        return waitUntil([&] { return openAlert() && hasKeyboard(openAlert()) && textsOfAlert().contains(text); });
    }
    void close()
    {
        const QPointer<QDialog> alert = openAlert();
        pressKey(KEY_ENTER);
        EXPECT_TRUE(waitUntil([&] { return !alert; }));
    }
    void closeLast()
    {
        pressKey(KEY_ENTER);
        ASSERT_TRUE(alertGoesBackTo(host.window()));
    }
    /// What a sheet keeps the keyboard and the mouse from, an assistive tool may do all the same.
    void turnToKeys() { find<QTabWidget>("tabbedView")->setCurrentIndex(hotKeyPage); }
    void clearAlt() { find<QAbstractButton>("optionCheckBox")->click(); }
    template <typename View>
    View *find(const char *name)
    {
        return host.window()->findChild<View *>(name);
    }
    bool isOn(const QString &page) { return host.window()->windowTitle() == page; }

    const QString pane = qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane";
    const PaneBundle other{"Other"};
    SettingsApplication host{{QFileInfo(pane).path(), other.folder()}};
    QVariantMap before;
};

} // namespace

TEST_F(WarningsInTheHost, comeOneAfterAnotherAndEachIsAnsweredOnItsOwn)
{
    start();
    turnToKeys();
    clearAlt();
    runPendingEvents();
    EXPECT_TRUE(isOn("Lumaroo"));
    EXPECT_TRUE(textsOfAlert().contains(conflictsAtOpening)) << "the first one stays in front";
    close();
    ASSERT_TRUE(comesUp(conflictsOnPage));
    close();
    ASSERT_TRUE(comesUp(lastModifier));
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    tickAlert();
    closeLast();
    before.insert(KTXSuppressModAlert, true);
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    EXPECT_TRUE(find<QAbstractButton>("optionCheckBox")->isChecked());
}

TEST_F(WarningsInTheHost, thatWereBegunBeforeTheFirstWasSuppressedAreShownAllTheSame)
{
    start();
    turnToKeys();
    tickAlert();
    close();
    ASSERT_TRUE(comesUp(conflictsOnPage));
    before.insert(KTXsuppressHKeysTaken, true);
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    closeLast();
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
}

TEST_F(WarningsInTheHost, areAllAnsweredBeforeThePaneIsLeftAndComeAgainWithIt)
{
    start();
    turnToKeys();
    host.showOverview();
    runPendingEvents();
    EXPECT_TRUE(isOn("Lumaroo"));
    close();
    ASSERT_TRUE(comesUp(conflictsOnPage));
    runPendingEvents();
    EXPECT_TRUE(isOn("Lumaroo"));
    // The question runs a loop of its own within the one that closes the sheet.
    QTimer user;
    user.callOnTimeout([&] {
        if (!textsOfAlert().contains(quitDespiteConflicts) || !hasKeyboard(openAlert()))
            return;
        user.stop();
        pressKey(KEY_Q);
    });
    user.start(0);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([this] { return isOn("Settings"); }));
    EXPECT_TRUE(noAlertComesUpOn(host.window()));
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    host.open(pane, QString());
    ASSERT_TRUE(comesUp(conflictsAtOpening));
    closeLast();
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
}
