#pragma once

#include "agent/tray/TrayMenu.h"
#include "agent/tray/linux/TrayTypes.h"

#include <QDBusObjectPath>
#include <QObject>

/// The icon on the session bus, as org.kde.StatusNotifierItem has it. Gone from the bus with the object.
class TrayItem : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(QList<TrayPixels> IconPixmap READ iconPixels)
    Q_PROPERTY(QString OverlayIconName READ overlayIconName)
    Q_PROPERTY(QList<TrayPixels> OverlayIconPixmap READ noPixels)
    Q_PROPERTY(QString AttentionIconName READ noText)
    Q_PROPERTY(QList<TrayPixels> AttentionIconPixmap READ noPixels)
    Q_PROPERTY(QString AttentionMovieName READ noText)
    Q_PROPERTY(TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ isMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)

public:
    explicit TrayItem(const TrayView &view);
    ~TrayItem() override;

    /// Tells the desktop of what is otherwise than before.
    void show(const TrayView &view);

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return QStringLiteral("lumaroo"); }
    QString title() const { return QStringLiteral("Lumaroo"); }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString iconName() const { return QStringLiteral("com.quorvane.LumarooSettings"); }
    QList<TrayPixels> iconPixels() const;
    QString overlayIconName() const { return view_.isOn ? QString() : QStringLiteral("media-playback-pause"); }
    QList<TrayPixels> noPixels() const { return {}; }
    QString noText() const { return {}; }
    TrayToolTip toolTip() const;
    bool isMenu() const { return false; }
    QDBusObjectPath menu() const;

public Q_SLOTS:
    // The interface on the bus; what a desktop says of places on screen is of no use here.
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SCRIPTABLE void Scroll(int delta, const QString &orientation);

Q_SIGNALS:
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewOverlayIcon();
    Q_SCRIPTABLE void NewToolTip();

    /// The icon was clicked.
    void activated();

private:
    TrayView view_;
};

/// Where the menu lies on the bus.
extern const QString trayMenuPath;
