#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>

/// What a screen reader is told by the programs that are started while the object lives: on the real bus for such
/// readers, which it brings up, too.
class ScreenReader
{
public:
    ScreenReader();
    ~ScreenReader();

    /// The names of all objects in a program's windows, from the outside in; what a label shows is its name. Empty
    /// where the program is not on the bus.
    QStringList textsOf(qint64 process) const;
    /// Waits until one of them is `text`.
    bool waitForText(qint64 process, const QString &text) const;

private:
    QString connectionOf(qint64 process) const;
    void collect(const QString &service, const QString &object, QStringList &texts) const;

    QProcess launcher_;
    QDBusConnection readers_{QString()};
};
