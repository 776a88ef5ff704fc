#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The desktop's place for status icons on the private bus: as a panel it takes icons up, reads what they tell, and
/// uses their menus. It shows nothing. Answered by the run loop.
class TrayHost : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ icons)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    /// On a connection of this name. One that waits is the place as soon as nobody else is.
    explicit TrayHost(const QString &connection = QStringLiteral("tray-host"));
    /// Goes from the bus as a process does that is killed.
    ~TrayHost() override;

    /// The names of the icons that it has now, and how often one has come.
    const QStringList &icons() const { return icons_; }
    int arrivals() const { return arrivals_; }
    /// Waits until it has exactly one icon; false when that does not come about.
    bool hasIcon() const;

    // Of its first icon, asked anew each time.
    QVariant property(const QString &name) const;
    QString toolTip() const;
    struct Line
    {
        QString label;
        QString type;
        int toggleState = -1; ///< -1 for none
    };
    /// The lines of its menu by their ids.
    QMap<int, Line> menu() const;
    /// A method of the icon or of its menu; waits for the answer.
    QDBusMessage call(const QString &method, const QVariantList &arguments) const;
    QDBusMessage callMenu(const QString &method, const QVariantList &arguments) const;
    /// As its user clicks a line.
    void choose(int id) const;

    /// The signals of the icon and its menu so far, by name.
    QStringList heard() const { return heard_; }
    void forgetHeard() { heard_.clear(); }

    bool hasHost() const { return true; }
    int protocolVersion() const { return 0; }

public Q_SLOTS:
    // The interface on the bus.
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString &service);
    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString &) { }

private Q_SLOTS:
    void hear(const QDBusMessage &signal) { heard_ += signal.member(); }

private:
    void forget(const QString &service);
    QDBusMessage callAt(
        const QString &path, const QString &interface, const QString &method, const QVariantList &arguments) const;

    QDBusConnection bus_;
    QDBusServiceWatcher living_;
    QStringList icons_;
    QStringList heard_;
    int arrivals_ = 0;
};
