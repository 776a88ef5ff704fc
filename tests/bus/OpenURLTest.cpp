// Web pages are given to the desktop's opener, or to the portal on the session bus where there is none.

#include "BrowserStandIn.h"
#include "CapturedLog.h"

#include "platform/appkit/web/NSWorkspace.h"
#include "platform/foundation/processes/ApplicationIdentifier.h"
#include "platform/foundation/processes/LaunchServices.h"
#include "platform/foundation/processes/NSTask.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QThread>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

const QUrl page("https://lumaroo.example/a%20b?c=d&e='f'#g");

class OpenURL : public testing::Test
{
protected:
    CapturedLog log;
    BrowserStandIn browser;
};

} // namespace

/// The desktop's portal: an object in a thread of its own, since whoever asks waits.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")

public:
    Portal()
    {
        moveToThread(&thread_);
        thread_.start();
        EXPECT_TRUE(
            connection_.registerObject("/org/freedesktop/portal/desktop", this, QDBusConnection::ExportAllSlots));
        EXPECT_TRUE(connection_.registerService("org.freedesktop.portal.Desktop"));
    }
    ~Portal() override
    {
        QDBusConnection::disconnectFromBus("portal");
        thread_.quit();
        thread_.wait();
    }

    QStringList opened; // looked at once the answer is there

public Q_SLOTS:
    QDBusObjectPath OpenURI(const QString &window, const QString &uri, const QVariantMap &)
    {
        opened += window + uri;
        return QDBusObjectPath("/org/freedesktop/portal/desktop/request/1");
    }

private:
    QDBusConnection connection_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
    QThread thread_;
};

TEST_F(OpenURL, aPageIsGivenToTheOpenerAsItIs)
{
    EXPECT_TRUE(NSWorkspace::sharedWorkspace()->openURL(page));
    ASSERT_TRUE(browser.waitForPages(1));
    EXPECT_EQ(browser.pages(), QStringList(QString::fromLatin1(page.toEncoded())));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(OpenURL, whatTheEnvironmentHoldsForOurTasksDoesNotReachTheBrowser)
{
    qputenv(hostExecutableVariable, "/host");
    qputenv(applicationIdentifierVariable, "test.application");
    qputenv("LUMAROO_HOST_EXECUTABLE_TOO", "stays");
    EXPECT_EQ(LSOpenCFURLRef(page), noErr);
    ASSERT_TRUE(browser.waitForPages(1));
    qunsetenv(hostExecutableVariable);
    qunsetenv(applicationIdentifierVariable);
    const QStringList environment = browser.environment();
    EXPECT_TRUE(environment.contains("LUMAROO_HOST_EXECUTABLE_TOO=stays"));
    EXPECT_TRUE(environment.contains("HOME=" + qEnvironmentVariable("HOME")));
    EXPECT_EQ(environment.filter("LUMAROO_HOST_EXECUTABLE=").size(), 0);
    EXPECT_EQ(environment.filter("LUMAROO_BUNDLE_IDENTIFIER").size(), 0);
}

TEST_F(OpenURL, addressesOtherThanWebPagesAreGivenToNobody)
{
    for (const QUrl &other : {QUrl(), QUrl("(null)"), QUrl("file:///etc/passwd"), QUrl("mailto:a@lumaroo.example"),
             QUrl("javascript:1"), QUrl("--help"), QUrl("http:")}) {
        log.clear();
        EXPECT_FALSE(NSWorkspace::sharedWorkspace()->openURL(other)) << other.toString().toStdString();
        EXPECT_EQ(log.lines().size(), 1);
    }
    EXPECT_TRUE(NSWorkspace::sharedWorkspace()->openURL(page));
    ASSERT_TRUE(browser.waitForPages(1));
    EXPECT_EQ(browser.pages(), QStringList(QString::fromLatin1(page.toEncoded())));
}

TEST_F(OpenURL, withoutAnOpenerThePortalIsAsked)
{
    browser.remove();
    const Portal portal;
    EXPECT_TRUE(NSWorkspace::sharedWorkspace()->openURL(page));
    EXPECT_EQ(portal.opened, QStringList(QString::fromLatin1(page.toEncoded())));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(OpenURL, withAnOpenerThePortalIsLeftAlone)
{
    const Portal portal;
    EXPECT_TRUE(NSWorkspace::sharedWorkspace()->openURL(page));
    ASSERT_TRUE(browser.waitForPages(1));
    EXPECT_EQ(portal.opened, QStringList());
}

TEST_F(OpenURL, whereNobodyTakesThePageThatIsOneLoggedLine)
{
    browser.remove();
    EXPECT_EQ(LSOpenCFURLRef(page), kLSApplicationNotFoundErr);
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().contains("no xdg-open")) << log.lines().first().toStdString();
}

#include "OpenURLTest.moc"
