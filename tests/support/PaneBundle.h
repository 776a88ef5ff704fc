#pragma once

#include "TestBundle.h"

#include <QStringList>

/// A bundle with the recording test pane in it (tests/support/panes/TestPane.cpp), made for one test.
class PaneBundle
{
public:
    /// "Name.prefPane"; its identifier is "test.Name". `info` is added to its Info dictionary or replaces what stands
    /// there.
    explicit PaneBundle(const QString &name, const QVariantMap &info = {});

    QString path() const { return bundle_.path(); }
    /// The folder that holds it and nothing else.
    QString folder() const;
    QString identifier() const;
    QString executable() const;
    const TestBundle &bundle() const { return bundle_; }

    /// What the pane does at a call from now on: "throw"; initWithBundle also "fail" and "post"; shouldUnselect also
    /// "cancel", "later", "reply at once" and "ask"; alloc "fail". Empty: nothing special.
    void wish(const QString &call, const QString &what) const;

    /// The calls so far; those with a view also tell whether it was "shown" or "hidden".
    QStringList calls() const;
    /// The calls since the last takeCalls.
    QStringList takeCalls();

private:
    TestBundle bundle_;
    qsizetype taken_ = 0;
};

/// The lines of a text file; none when there is no such file.
QStringList linesOf(const QString &path);
