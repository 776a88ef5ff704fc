// Light and dark: the host's own palettes, and how it follows the desktop.

#include "Wait.h"
#include "host/Appearance.h"
#include "host/Palettes.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QStyle>
#include <QStyleFactory>
#include <gmock/gmock.h>

namespace {

const QString service = "org.freedesktop.portal.Desktop";
const QString path = "/org/freedesktop/portal/desktop";
const QString appearanceGroup = "org.freedesktop.appearance";

/// The settings portal of a desktop, on the test's own bus.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit Portal(uint scheme)
        : connection_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal")), scheme_(scheme)
    {
        connection_.registerObject(path, this, QDBusConnection::ExportScriptableContents);
        EXPECT_TRUE(connection_.registerService(service));
    }
    ~Portal() override
    {
        connection_.unregisterService(service);
        connection_.unregisterObject(path);
        QDBusConnection::disconnectFromBus("portal");
    }

    void tell(const QString &group, const QString &key, uint value)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        connection_.send(signal);
    }

    /// Waits until all that either side has sent by now has arrived and been handled.
    void settle()
    {
        for (const QDBusConnection &side : {QDBusConnection::sessionBus(), connection_, QDBusConnection::sessionBus()})
            QDBusInterface("org.freedesktop.DBus", "/", "org.freedesktop.DBus", side).call("GetId");
        runPendingEvents();
    }

    int questions() const { return questions_; }

protected:
    QDBusVariant answer(const QString &group, const QString &key)
    {
        ++questions_;
        EXPECT_EQ(group, appearanceGroup);
        EXPECT_EQ(key, "color-scheme");
        return QDBusVariant(scheme_);
    }

private:
    QDBusConnection connection_;
    uint scheme_;
    int questions_ = 0;
};

class NewPortal : public Portal
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Portal::Portal;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant ReadOne(const QString &group, const QString &key) { return answer(group, key); }
};

class OldPortal : public Portal
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Portal::Portal;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString &group, const QString &key)
    {
        return QDBusVariant(QVariant::fromValue(answer(group, key)));
    }
};

bool isDark()
{
    return QApplication::palette() == paletteFor(ColorScheme::Dark);
}

bool isLight()
{
    return QApplication::palette() == paletteFor(ColorScheme::Light);
}

class AnAppearance : public testing::Test
{
protected:
    void SetUp() override
    {
        QApplication::setStyle(QStyleFactory::create("fusion"));
        QApplication::setPalette(QApplication::style()->standardPalette());
    }
};

} // namespace

TEST_F(AnAppearance, hasReadableTextInBothSchemes)
{
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {{QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base}, {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button}, {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::PlaceholderText, QPalette::Window}, {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Window}, {QPalette::Link, QPalette::Base}, {QPalette::LinkVisited, QPalette::Base},
        {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::BrightText, QPalette::Window}};
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const QPalette palette = paletteFor(scheme);
        for (const auto &[text, ground] : texts)
            EXPECT_GE(contrastRatio(palette.color(text), palette.color(ground)), 4.5)
                << "dark " << int(scheme) << " role " << text << " on " << ground;
        EXPECT_GE(contrastRatio(palette.color(QPalette::Highlight), palette.color(QPalette::Window)), 3);
    }
}

TEST_F(AnAppearance, isLightWithoutAPortal)
{
    const Appearance appearance(std::nullopt);
    EXPECT_TRUE(isLight());
}

TEST_F(AnAppearance, takesTheDesktopsDarkScheme)
{
    const NewPortal portal(1);
    const Appearance appearance(std::nullopt);
    EXPECT_TRUE(waitUntil([] { return isDark(); }));
    EXPECT_EQ(portal.questions(), 1);
}

TEST_F(AnAppearance, asksAnOlderPortalInItsOwnWay)
{
    const OldPortal portal(1);
    const Appearance appearance(std::nullopt);
    EXPECT_TRUE(waitUntil([] { return isDark(); }));
}

TEST_F(AnAppearance, followsTheDesktopsChanges)
{
    NewPortal portal(0);
    const Appearance appearance(std::nullopt);
    ASSERT_TRUE(waitUntil([&] { return portal.questions() == 1; }));
    portal.tell(appearanceGroup, "color-scheme", 1);
    EXPECT_TRUE(waitUntil([] { return isDark(); }));
    portal.tell(appearanceGroup, "color-scheme", 2);
    EXPECT_TRUE(waitUntil([] { return isLight(); }));
}

TEST_F(AnAppearance, takesNoNoticeOfAnotherSettingOrAnotherGroup)
{
    NewPortal portal(1);
    const Appearance appearance(std::nullopt);
    ASSERT_TRUE(waitUntil([] { return isDark(); }));
    portal.tell(appearanceGroup, "contrast", 0);
    portal.tell("org.example", "color-scheme", 0);
    portal.settle();
    EXPECT_TRUE(isDark());
}

TEST_F(AnAppearance, staysFixedWhenToldSo)
{
    NewPortal portal(0);
    const Appearance appearance(ColorScheme::Dark);
    EXPECT_TRUE(isDark());
    portal.tell(appearanceGroup, "color-scheme", 2);
    portal.settle();
    EXPECT_TRUE(isDark());
    EXPECT_EQ(portal.questions(), 0);
}

TEST_F(AnAppearance, leavesTheColoursOfADesktopThemeAlone)
{
    QPalette theme = QApplication::palette();
    theme.setColor(QPalette::Window, QColor(Qt::darkGreen));
    QApplication::setPalette(theme);
    NewPortal portal(1);
    const Appearance appearance(std::nullopt);
    portal.settle();
    EXPECT_EQ(QApplication::palette(), theme);
    EXPECT_EQ(portal.questions(), 0);
}

TEST_F(AnAppearance, leavesTheStyleOfADesktopThemeAlone)
{
    QApplication::setStyle(QStyleFactory::create("windows"));
    const Appearance appearance(std::nullopt);
    EXPECT_EQ(QApplication::style()->name(), "windows");
}

TEST_F(AnAppearance, leavesAThemeThatTheEnvironmentNamesAlone)
{
    qputenv("QT_QPA_PLATFORMTHEME", "some");
    const Appearance appearance(std::nullopt);
    qunsetenv("QT_QPA_PLATFORMTHEME");
    EXPECT_FALSE(isLight());
}

#include "HostAppearanceTest.moc"
