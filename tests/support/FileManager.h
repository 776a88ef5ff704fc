#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

/// The user's file manager on the private bus: it shows nothing and remembers what it was to show.
class FileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    FileManager()
    {
        bus_.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this, QDBusConnection::ExportAllSlots);
        bus_.registerService(QStringLiteral("org.freedesktop.FileManager1"));
    }
    ~FileManager() override
    {
        bus_.unregisterService(QStringLiteral("org.freedesktop.FileManager1"));
        bus_.unregisterObject(QStringLiteral("/org/freedesktop/FileManager1"));
    }

    const QStringList &shown() const { return shown_; }

public Q_SLOTS:
    // The interface on the bus.
    void ShowItems(const QStringList &addresses, const QString &) { shown_ += addresses; }

private:
    QDBusConnection bus_ = QDBusConnection::sessionBus();
    QStringList shown_;
};
