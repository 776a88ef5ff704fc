#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
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
    QString opening = {}; ///< what a click on the bubble itself opens, in a word; nothing where it is empty
};

/// The desktop's notifications. Of its own accord the desktop is heard only while a bubble with an action is up; else
/// what is told is whether its server has gone, while there is a bubble.
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
    /// The notice itself.
    void clicked(const QString &matter);

private Q_SLOTS:
    void handleAction(quint32 id, const QString &action);
    void handleClosing(quint32 id);

private:
    void ask(const Notice &notice);
    void goOn(const QString &matter);
    void handleShown(const Notice &notice, quint32 id);
    void forgetAll();
    void followShown();
    void listen(bool listen);

    QHash<QString, quint32> shown_; ///< the newest bubble of each matter; perhaps it has been closed
    QSet<QString> pressable_; ///< the matters whose bubble has an action and is up
    QSet<QString> asked_; ///< the matters of which a notice is under way
    QHash<QString, Notice> waiting_; ///< the newest one of each of them
    bool isListening_ = false;
    QDBusServiceWatcher *const server_; ///< that shows them
};
