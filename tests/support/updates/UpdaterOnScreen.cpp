#include "UpdaterOnScreen.h"

#include "KeyPress.h"
#include "Wait.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "updater/core/Appcast.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>

UpdaterOnScreen::UpdaterOnScreen()
{
    updater()->setFeedURL(feed().toString());
}

UpdaterOnScreen::~UpdaterOnScreen()
{
    updater()->setAutomaticallyChecksForUpdates(false);
    if (window())
        window()->reject();
    EXPECT_EQ(window(), nullptr) << page().toStdString();
}

SUUpdater *UpdaterOnScreen::updater() const
{
    return SUUpdater::updaterForBundle(NSBundle::bundleWithPath(bundle()));
}

void UpdaterOnScreen::checkBySchedule(double interval) const
{
    updater()->setAutomaticallyChecksForUpdates(true);
    updater()->setUpdateCheckInterval(interval);
    updater()->resetUpdateCycle();
}

void UpdaterOnScreen::tellWith(const AppcastItem &item, const QByteArray &elements) const
{
    tell({item});
    QByteArray feed = contentOf(served(QStringLiteral("appcast.xml")));
    tellText(feed.replace("</item>", elements + "</item>"));
}

void UpdaterOnScreen::changeInfo(const QVariantMap &changes) const
{
    QVariantMap info = NSBundle::infoDictionaryOnDisk(bundle());
    info.insert(changes);
    write(bundle() + QStringLiteral("/Contents/Info.plist"), writeXMLPropertyList(info));
}

void UpdaterOnScreen::putInstaller() const
{
    const QString product = qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane");
    const QString inside = QStringLiteral("/Contents/Resources/installer");
    ASSERT_TRUE(QFile::link(product + inside, bundle() + inside));
}

QDialog *UpdaterOnScreen::window()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QStringLiteral("updateWindow") && widget->isVisible())
            return qobject_cast<QDialog *>(widget);
    }
    return nullptr;
}

QString UpdaterOnScreen::page()
{
    return window() ? window()->findChild<QLabel *>(QStringLiteral("heading"))->parentWidget()->objectName()
                    : QString();
}

bool UpdaterOnScreen::shows(const QString &wanted)
{
    const bool isThere = waitUntil([&] { return page() == wanted; });
    EXPECT_TRUE(isThere) << "shown is: " << page().toStdString();
    return isThere;
}

bool UpdaterOnScreen::closes()
{
    return waitUntil([] { return window() == nullptr; });
}

QString UpdaterOnScreen::text(const QString &name)
{
    const auto *label = window() ? window()->findChild<QLabel *>(name) : nullptr;
    return label ? label->text() : QString();
}

bool UpdaterOnScreen::has(const QString &button)
{
    return window() && window()->findChild<QPushButton *>(button) != nullptr;
}

void UpdaterOnScreen::pressWithKeyboard(int evdevCode, const QList<int> &held)
{
    ASSERT_TRUE(waitUntil([] { return window() && hasKeyboard(window()); }));
    pressKey(evdevCode, held);
}

void UpdaterOnScreen::press(const QString &button)
{
    ASSERT_TRUE(has(button)) << button.toStdString();
    window()->findChild<QPushButton *>(button)->click();
}

bool UpdaterOnScreen::wasAsked(const QString &request) const
{
    return waitUntil([&] { return server.requests().contains(request); });
}
