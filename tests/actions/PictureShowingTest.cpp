// A picture is shown to its user, whatever there is to show it.

#include "agent/actions/PictureShowing.h"
#include "CapturedLog.h"
#include "FileManager.h"
#include "Wait.h"

#include <QTemporaryDir>
#include <QThreadPool>
#include <gtest/gtest.h>

namespace {

/// The desktop's portal. It answers as soon as this thread's event loop comes to it.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")

public:
    Portal()
    {
        bus_.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this, QDBusConnection::ExportAllSlots);
        bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~Portal() override { QDBusConnection::disconnectFromBus(bus_.name()); }

    QStringList opened;

public Q_SLOTS:
    // The interface on the bus.
    QDBusObjectPath OpenURI(const QString &, const QString &address, const QVariantMap &)
    {
        opened += address;
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/1"));
    }

private:
    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
};

/// Without a program that opens addresses.
class PictureShown : public testing::Test
{
protected:
    PictureShown() { qputenv("PATH", QFile::encodeName(folder_.path())); }
    ~PictureShown() override { qputenv("PATH", path_); }

private:
    const QTemporaryDir folder_;
    const QByteArray path_ = qgetenv("PATH");
};

} // namespace

TEST_F(PictureShown, isShownByTheFileManager)
{
    const FileManager fileManager;
    showFile(QStringLiteral("/pictures/One 100% red.png"));
    ASSERT_TRUE(waitUntil([&] { return !fileManager.shown().isEmpty(); }));
    EXPECT_EQ(fileManager.shown(), QStringList("file:///pictures/One%20100%25%20red.png"));
}

TEST_F(PictureShown, hasItsFolderOpenedWithoutAFileManagerAndHoldsNothingUp)
{
    const Portal portal;
    const CapturedLog log;
    showFile(QStringLiteral("/pictures/One.png"));
    ASSERT_TRUE(waitUntil([&] { return !portal.opened.isEmpty(); }));
    EXPECT_EQ(portal.opened, QStringList("file:///pictures"));
    ASSERT_TRUE(waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }));
    EXPECT_TRUE(log.lines().isEmpty()) << "the answer came while it was waited for";
}

#include "PictureShowingTest.moc"
