#pragma once

#include <QDBusServiceWatcher>
#include <QObject>

/// The desktop's place for status icons, and ours in it. Nothing waits for an answer.
class TrayPlace : public QObject
{
    Q_OBJECT

public:
    /// Takes the place, now and whenever the desktop offers it anew.
    TrayPlace();
    /// Gives it back.
    ~TrayPlace() override;

private:
    void take() const;

    QDBusServiceWatcher desktop_;
};
