#include "ProductOnHotKeyPage.h"

#include "AgentProgram.h"
#include "KeyPress.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <linux/input-event-codes.h>

QVariantMap ProductOnHotKeyPage::domain()
{
    return NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
}

QVariantMap ProductOnHotKeyPage::hotKey(int keyCode)
{
    return {{KTXKeycode, QString::number(keyCode)}};
}

void ProductOnHotKeyPage::launch(int windows)
{
    settings = std::make_unique<SettingsProgram>(QStringList{pane()});
    ASSERT_TRUE(settings->waitForWindows(windows));
    settings->settledPicture();
}

void ProductOnHotKeyPage::open(int windows)
{
    launch(windows);
    ASSERT_TRUE(agentStarts());
    ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
    settings->settledPicture();
    remember();
}

void ProductOnHotKeyPage::openAgain(int windows)
{
    launch(windows);
    remember();
}

void ProductOnHotKeyPage::turnToKeys(int windows)
{
    const QImage shown = settings->settledPicture();
    pressKey(KEY_TAB, {KEY_LEFTCTRL});
    ASSERT_FALSE(settings->pictureAfterChangeFrom(shown).isNull());
    ASSERT_TRUE(settings->waitForWindows(windows));
    settings->settledPicture();
}

void ProductOnHotKeyPage::pressTab(int times)
{
    QImage shown = settings->settledPicture();
    for (int tab = 0; tab < times; ++tab) {
        pressKey(KEY_TAB);
        shown = settings->pictureAfterChangeFrom(shown);
        ASSERT_FALSE(shown.isNull()) << tab;
    }
}

void ProductOnHotKeyPage::quit()
{
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
}

void ProductOnHotKeyPage::suppressAndClose()
{
    settings->settledPicture();
    pressKey(KEY_TAB);
    pressKey(KEY_SPACE);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings->waitForWindows(1));
}

void ProductOnHotKeyPage::closeSheet()
{
    pressKey(KEY_ESC);
    ASSERT_TRUE(settings->waitForWindows(1));
    settings->settledPicture();
}

void ProductOnHotKeyPage::remember()
{
    before = domain();
    bus.clear();
}

void ProductOnHotKeyPage::expectNothingStored()
{
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    EXPECT_EQ(bus.names(), QStringList());
}

void ProductOnHotKeyPage::expectStoredAndAnnounced(const QString &key, const QVariant &value)
{
    before.insert(key, value);
    EXPECT_TRUE(waitUntil([this] { return isEqualPropertyList(domain(), before); })) << key.toStdString();
    EXPECT_TRUE(waitUntil([this] { return !bus.names().isEmpty(); }));
    EXPECT_EQ(bus.notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
    remember();
}

void ProductOnHotKeyPage::expectStored(const QString &key, const QVariant &value, const QJsonValue &agentsValue)
{
    expectStoredAndAnnounced(key, value);
    EXPECT_TRUE(waitUntil([&] { return runningAgentsSetting(key) == agentsValue; })) << key.toStdString();
}

void ProductOnHotKeyPage::expectStored(const QString &key, int keyCode)
{
    expectStored(key, hotKey(keyCode), QJsonObject{{KTXKeycode, QString::number(keyCode)}});
}
