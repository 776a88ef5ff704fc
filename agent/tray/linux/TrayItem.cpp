#include "agent/tray/linux/TrayItem.h"

#include "agent/tray/TrayPicture.h"

#include <QDBusConnection>
#include <utility>

const QString trayMenuPath = QStringLiteral("/StatusNotifierItem/Menu");

namespace {

/// The one at which desktops look.
const QString path = QStringLiteral("/StatusNotifierItem");

} // namespace

TrayItem::TrayItem(const TrayView &view) : view_(view)
{
    registerTrayTypes();
    QDBusConnection::sessionBus().registerObject(path, this,
        QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals
            | QDBusConnection::ExportScriptableProperties);
}

TrayItem::~TrayItem()
{
    QDBusConnection::sessionBus().unregisterObject(path);
}

void TrayItem::show(const TrayView &view)
{
    const TrayView before = std::exchange(view_, view);
    if (before.isOn != view.isOn) {
        Q_EMIT NewIcon();
        Q_EMIT NewOverlayIcon();
    }
    if (before != view)
        Q_EMIT NewToolTip();
}

QList<TrayPixels> TrayItem::iconPixels() const
{
    QList<TrayPixels> all;
    for (const int size : {24, 48})
        all.append({size, size, trayPicture(size, view_.isOn)});
    return all;
}

TrayToolTip TrayItem::toolTip() const
{
    return {{}, {}, title(), trayToolTip(view_)};
}

QDBusObjectPath TrayItem::menu() const
{
    return QDBusObjectPath(trayMenuPath);
}

void TrayItem::Activate(int, int)
{
    Q_EMIT activated();
}

void TrayItem::SecondaryActivate(int, int) { }

/// The desktop shows it by itself.
void TrayItem::ContextMenu(int, int) { }

void TrayItem::Scroll(int, const QString &) { }
