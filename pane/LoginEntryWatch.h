#pragma once

#include <QFileSystemWatcher>

/// Watches the entry by which the desktop starts the agent at login: whoever changes it.
class LoginEntryWatch : public QObject
{
    Q_OBJECT

public:
    LoginEntryWatch();

Q_SIGNALS:
    /// It may say something else now.
    void changed();

private:
    void follow();

    QFileSystemWatcher watcher_;
};
