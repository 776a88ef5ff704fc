#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QDBusServiceWatcher;

/// Something to tell the user, as a bubble of the desktop's.
struct Notice
{
    QString matter; ///< a later notice of the same matter takes its place
    QString title;
    QString text; ///< plain
    QString button; ///< none where it is empty
    QString picture = {}; ///< a file that shows it
    QString secondButton = {}; ///< beside the first
};

/// The desktop's notifications. Nothing is listened to but while a bubble with a button is up.
class Notices : public QObject
{
    Q_OBJECT

public:
    Notices();
    ~Notices() override;

    /// Returns at once. Where nobody shows it within 2 s, the log has it; its buttons work also when it is shown later.
    void tell(const Notice &notice);

Q_SIGNALS:
    /// A notice's button.
    void pressed(const QString &matter);
    void secondPressed(const QString &matter);

private Q_SLOTS:
    void handleAction(quint32 id, const QString &action);
    void handleClosing(quint32 id);

private:
    void handleShown(const Notice &notice, quint32 id);
    void forgetAll();
    void listen(bool listen);

    QHash<QString, quint32> shown_; ///< the bubble of each matter that has one
    bool isListening_ = false;
    QDBusServiceWatcher *const server_; ///< that shows them
};
