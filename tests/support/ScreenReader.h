#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QRect>
#include <QStringList>

/// What a program tells of one of its parts.
struct ToldObject
{
    QString path; ///< on the bus
    QString role; ///< "check box"
    QString name;
    QString description;
    quint64 states = 0; ///< a bit each, as the bus numbers them
    QRect place; ///< on the screen
    int depth = 0;

    bool is(int state) const { return states >> state & 1; }
    bool isShown() const { return is(25); }
    bool isChecked() const { return is(4); }
    bool isFocused() const { return is(12); }
    bool isFocusable() const { return is(11); }
};

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
    /// All objects in a program's windows, from the outside in.
    QList<ToldObject> objectsOf(qint64 process) const;
    /// The name of what labels an object; empty where nothing does.
    QString labelOf(qint64 process, const ToldObject &object) const;
    /// Does what a click on an object does.
    void press(qint64 process, const ToldObject &object) const;
    /// Waits until one of them is `text`.
    bool waitForText(qint64 process, const QString &text) const;

private:
    QString connectionOf(qint64 process) const;
    QList<ToldObject> named(qint64 process) const;
    void collect(const QString &service, const QString &path, int depth, QList<ToldObject> &objects) const;

    QProcess launcher_;
    QDBusConnection readers_{QString()};
};
