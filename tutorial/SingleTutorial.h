#pragma once

#include <QObject>

/// One tutorial in a session: the first owns a bus name, each later one has it come to the front. Without a session bus
/// each is the first.
class SingleTutorial : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quorvane.LumarooTutorial")

public:
    /// True for the first. Otherwise the first has been asked to come forward, or does not answer for 25 s, which is
    /// logged.
    bool isFirst();

public Q_SLOTS:
    // The interface on the bus.
    Q_SCRIPTABLE void Raise();

Q_SIGNALS:
    void raiseRequested();
};
