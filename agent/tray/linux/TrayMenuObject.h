#pragma once

#include "agent/tray/TrayMenu.h"
#include "agent/tray/linux/TrayTypes.h"

#include <QDBusContext>
#include <QObject>

/// The icon's menu on the session bus, as com.canonical.dbusmenu has it: flat, and its lines stay what they are. Gone
/// from the bus with the object.
class TrayMenuObject : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    explicit TrayMenuObject(const TrayView &view);
    ~TrayMenuObject() override;

    /// Tells the desktop of the lines that are otherwise than before.
    void show(const TrayView &view);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    // The interface on the bus. No list of names means all properties.
    Q_SCRIPTABLE uint GetLayout(int parent, int depth, const QStringList &names, TrayMenuNode &layout) const;
    Q_SCRIPTABLE QList<TrayMenuProperties> GetGroupProperties(const QList<int> &ids, const QStringList &names) const;
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString &name) const;
    Q_SCRIPTABLE void Event(int id, const QString &event, const QDBusVariant &data, uint time);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<TrayMenuEvent> &events);
    Q_SCRIPTABLE bool AboutToShow(int id) const;
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &unknown) const;

Q_SIGNALS:
    Q_SCRIPTABLE void ItemsPropertiesUpdated(
        const QList<TrayMenuProperties> &updated, const QList<TrayMenuDefaults> &removed);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

    /// A line was clicked; its number, as the bus library knows no other kind of ours.
    void clicked(int id);

private:
    bool take(int id, const QString &event);
    void refuse(int id) const;

    TrayView view_;
    uint revision_ = 1;
};
