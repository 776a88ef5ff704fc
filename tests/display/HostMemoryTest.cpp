// What the host remembers: its window's size and the last pane. Nothing of it stands in the pane's own domain.

#include "PaneBundle.h"
#include "Wait.h"
#include "host/SettingsApplication.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QListView>
#include <gmock/gmock.h>

namespace {

QVariantMap settingsOf(const QString &domain)
{
    return NSUserDefaults::standardUserDefaults()->persistentDomainForName(domain);
}

class AHostThatRanBefore : public testing::Test
{
protected:
    void SetUp() override { NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, HostState::domain); }

    PaneBundle first{"First"};
    PaneBundle second{"Second"};
    const QStringList folders{first.folder(), second.folder()};
};

} // namespace

TEST_F(AHostThatRanBefore, openAgainInTheSizeItHad)
{
    {
        SettingsApplication host(folders);
        host.start(QString());
        host.window()->resize(903, 517);
        ASSERT_TRUE(waitUntil([&] { return host.window()->sizeToRemember() == QSize(903, 517); }));
    }
    SettingsApplication again(folders);
    again.start(second.identifier());
    EXPECT_EQ(again.window()->size(), QSize(903, 517));
}

TEST_F(AHostThatRanBefore, remembersTheSizeBeforeItWasMaximised)
{
    SettingsApplication host(folders);
    host.start(QString());
    ASSERT_TRUE(waitUntil([&] { return host.window()->isActiveWindow(); }));
    const QSize before = host.window()->size();
    host.window()->showMaximized();
    ASSERT_TRUE(waitUntil([&] { return host.window()->width() > 1000; }));
    EXPECT_EQ(host.window()->sizeToRemember(), before);
}

TEST_F(AHostThatRanBefore, keepsItsSizeFromPageToPage)
{
    SettingsApplication host(folders);
    host.start(first.identifier());
    ASSERT_TRUE(waitUntil([&] { return first.calls().contains("didSelect shown"); }));
    const QSize size = host.window()->size();
    host.showOverview();
    runPendingEvents();
    EXPECT_EQ(host.window()->size(), size);
    host.open(second.identifier(), QString());
    ASSERT_TRUE(waitUntil([&] { return second.calls().contains("didSelect shown"); }));
    EXPECT_EQ(host.window()->size(), size);
}

TEST_F(AHostThatRanBefore, startsTheOverviewAtTheLastPane)
{
    {
        SettingsApplication host(folders);
        host.start(second.identifier());
    }
    SettingsApplication again(folders);
    again.start(QString());
    EXPECT_EQ(again.window()->findChild<QListView *>("paneGrid")->currentIndex().data().toString(), "Second");
}

TEST_F(AHostThatRanBefore, keepsItsStateInItsOwnDomainOnly)
{
    {
        SettingsApplication host(folders);
        host.start(second.identifier());
    }
    EXPECT_EQ(settingsOf("com.apple.systempreferences").value("LastPane").toString(), "test.Second");
    EXPECT_TRUE(settingsOf("com.quorvane.Lumaroo").isEmpty());
}

TEST_F(AHostThatRanBefore, takesNoNoticeOfNonsenseInItsState)
{
    const QVariantMap nonsense[] = {{{"WindowWidth", "wide"}, {"WindowHeight", 600LL}},
        {{"WindowWidth", -5LL}, {"WindowHeight", 0LL}}, {{"WindowWidth", 1000000LL}, {"WindowHeight", 1LL}},
        {{"LastPane", QVariantMap{}}}};
    for (const QVariantMap &state : nonsense) {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(state, HostState::domain);
        SettingsApplication host(folders);
        host.start(QString());
        EXPECT_GE(host.window()->height(), 280);
        EXPECT_LE(host.window()->width(), host.window()->screen()->availableSize().width());
    }
}
