#pragma once

#include "TestBundle.h"

#include <QStringList>

/// What the desktop would open web pages with, for as long as the object lives: a program that writes down what it is
/// given instead of opening it.
class BrowserStandIn
{
public:
    BrowserStandIn();
    ~BrowserStandIn();
    Q_DISABLE_COPY_MOVE(BrowserStandIn)

    /// Takes the program away: nothing is left that opens pages.
    void remove() const;

    /// What was opened so far, complete once `waitForPages` has seen as many: one entry for each run of the program,
    /// its arguments one a line.
    QStringList pages() const;
    bool waitForPages(int count) const;
    /// What the program found in its environment, "NAME=value" each.
    QStringList environment() const;

private:
    TestBundle folder_;
    QByteArray pathBefore_;
};
