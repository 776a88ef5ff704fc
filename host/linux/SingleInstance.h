#pragma once

#include <QDBusContext>
#include <QObject>
#include <QString>

/// One settings application in a session: the first owns a bus name, each later one hands its request to it.
/// Without a session bus each is the first.
class SingleInstance : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quorvane.LumarooSettings")

public:
    /// Becomes the first, or hands over. Waits for a running one's answer, which comes at once, or for its end where
    /// it is just ending; 25 s at most.
    enum class Outcome { First, HandedOver, NoAnswer };
    Outcome start(const QString &request, const QString &activationToken);

    /// From now on those who ask wait for this process's end, after which one of them becomes the first. Called when
    /// nothing can keep it from ending any more.
    void stopTakingRequests() { takesRequests_ = false; }

public Q_SLOTS:
    // The interface on the bus.
    Q_SCRIPTABLE void Open(const QString &request, const QString &activationToken);

Q_SIGNALS:
    void requested(const QString &request, const QString &activationToken);

private:
    bool becomeFirst();

    bool takesRequests_ = true;
};
