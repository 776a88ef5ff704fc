#pragma once

#include <QSize>

/// What the viewer remembers from one run to the next, in the host's own settings domain: nothing in a program without
/// an identifier.
class HelpState
{
public:
    /// The window's size, or an invalid one when none was remembered.
    static QSize windowSize();
    /// In percent, 100 when none was remembered.
    static int zoom();
    static void remember(QSize windowSize, int zoom);
};
