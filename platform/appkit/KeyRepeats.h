#pragma once

#include "platform/appkit/Export.h"

#include <QtGlobal>
#include <optional>

class QKeyEvent;

/// Tells the repeats of a key that stays down from presses, for whoever filters a window's or a view's key events.
///
/// The server repeats a key by a release and a press of one and the same time, with nothing in between. The toolkit
/// knows the press for a repeat only if both have arrived together, and takes for one what a program types that fast.
class LM_APPKIT KeyRepeats
{
public:
    bool isRepeat(const QKeyEvent &press) const;
    /// To be told of each press, after it has been asked about, and of each release.
    void notePress(const QKeyEvent &press);
    void noteRelease(const QKeyEvent &release);

private:
    struct KeyMove
    {
        quint32 scanCode = 0;
        quint64 time = 0;
    };

    KeyMove lastPress_; ///< repeats left out
    std::optional<KeyMove> lastRelease_; ///< none since a press
};
