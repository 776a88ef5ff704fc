// The real settings, the real agent and a user who gives actions their keys without a mouse.

#include "AgentProgram.h"
#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "Wait.h"
#include "platform/foundation/NSUserDefaults.h"
#include "platform/foundation/PropertyList.h"

#include <linux/input-event-codes.h>

namespace {

/// Tab goes from the tabs over the four modifiers to the key for up, then to those for left, under, right and down.
constexpr int tabsToKeyForUp = 5;

class KeysByUser : public InstalledProduct
{
protected:
    static QVariantMap domain() { return NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID); }
    static QVariantMap hotKey(int keyCode) { return {{KTXKeycode, QString::number(keyCode)}}; }

    /// The settings with the key for up in focus, and the agent that their first run starts.
    void start()
    {
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
        ASSERT_TRUE(agentStarts());
        ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
        QImage shown = settings->settledPicture();
        pressKey(KEY_TAB, {KEY_LEFTCTRL});
        shown = settings->pictureAfterChangeFrom(shown);
        for (int tab = 0; tab < tabsToKeyForUp; ++tab) {
            pressKey(KEY_TAB);
            shown = settings->pictureAfterChangeFrom(shown);
            ASSERT_FALSE(shown.isNull()) << tab;
        }
        remember();
    }
    void remember()
    {
        before = domain();
        bus.clear();
    }
    /// The file holds exactly this more, it has been announced once, and the running agent has read it.
    void expectStored(const QString &key, int keyCode)
    {
        before.insert(key, hotKey(keyCode));
        EXPECT_TRUE(waitUntil([this] { return isEqualPropertyList(domain(), before); })) << keyCode;
        EXPECT_TRUE(waitUntil([this] { return !bus.names().isEmpty(); }));
        EXPECT_EQ(bus.notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
        const QJsonObject expected{{KTXKeycode, QString::number(keyCode)}};
        EXPECT_TRUE(waitUntil([&] { return runningAgentsSetting(key) == QJsonValue(expected); })) << keyCode;
        remember();
    }

    std::unique_ptr<SettingsProgram> settings;
    QVariantMap before;
};

} // namespace

TEST_F(KeysByUser, aKeyPressedInAFieldIsStoredAnnouncedAndReadByTheAgent)
{
    start();
    pressKey(KEY_B);
    expectStored(KTXUpPref, 11);
    pressKey(KEY_ENTER);
    pressKey(KEY_KPENTER);
    expectStored(KTXLeftPref, 76);
    pressKey(KEY_ENTER, {KEY_LEFTSHIFT});
    pressKey(KEY_KP8);
    expectStored(KTXUpPref, 91);
    pressKey(KEY_Q, {KEY_LEFTCTRL}); // in a field it is a key like others
    expectStored(KTXUpPref, 12);
}

TEST_F(KeysByUser, theWindowsOwnKeysAreTakenInAFieldAndItsEscapeKeysAreNot)
{
    start();
    for (const auto &[key, held, code] : std::initializer_list<std::tuple<int, int, int>>{{KEY_F, KEY_LEFTCTRL, 3},
             {KEY_Q, KEY_LEFTCTRL, 12}, {KEY_A, KEY_LEFTALT, 0}, {KEY_B, KEY_LEFTALT, 11}, {KEY_A, KEY_LEFTMETA, 0}}) {
        pressKey(key, {held});
        expectStored(KTXUpPref, code);
    }
    pressKey(KEY_ESC);
    pressKey(KEY_TAB, {KEY_LEFTCTRL});
    EXPECT_TRUE(settings->isRunning());
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_EQ(domain(), before);
}

TEST_F(KeysByUser, aKeyInUseIsRefusedAndTheNextIsTaken)
{
    start();
    pressKey(KEY_SPACE);
    ASSERT_TRUE(settings->waitForWindows(2));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_EQ(domain(), before);
    EXPECT_TRUE(bus.names().isEmpty());
    pressKey(KEY_X);
    expectStored(KTXUpPref, 7);
}

TEST_F(KeysByUser, aNewKeyIsThereAfterTheSettingsWereClosedAndOpened)
{
    start();
    pressKey(KEY_B);
    expectStored(KTXUpPref, 11);
    pressKey(KEY_TAB, {KEY_LEFTSHIFT});
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_EQ(domain().value(KTXUpPref), QVariant(hotKey(11)));
    SettingsProgram again({pane()});
    ASSERT_TRUE(again.waitForWindows(1));
    again.settledPicture();
    EXPECT_EQ(domain().value(KTXUpPref), QVariant(hotKey(11)));
    EXPECT_EQ(runningAgentsSetting(KTXUpPref).toObject().value(KTXKeycode), QJsonValue("11"));
}
