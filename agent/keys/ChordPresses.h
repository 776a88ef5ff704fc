#pragma once

#include <QtGlobal>
#include <optional>

/// Tells when all activation modifiers, and nothing else, are pressed once or twice. It goes by the times at which the
/// keys went down and up, in milliseconds, so it does not matter when it is told of them.
class ChordPresses
{
public:
    enum class Outcome : quint8 { Nothing, Single, Double };

    static constexpr quint32 longestSingle = 300, longestDouble = 400;
    /// Whoever presses and releases faster is a program that types, and what it typed in between went unseen.
    static constexpr quint32 shortest = 10;

    /// Starts anew with these; with none, nothing is ever told.
    void setModifiers(quint32 modifiers);
    /// Which of all modifiers are held from now on.
    Outcome modifiersDidChange(quint32 held, quint32 time);
    /// Another key or a button was pressed; told late, perhaps, and then what began since is not concerned.
    void somethingElseWasPressed(quint32 time);

    /// Whether a first time counts so far; it may be long ago.
    bool hasBegun() const { return first_.has_value(); }
    /// Whether it matters what else is pressed.
    bool isWaiting(quint32 time) const { return first_ && quint32(time - *first_) <= longestDouble; }

private:
    void spoil();
    Outcome chordBegan(quint32 time);
    void chordEnded(quint32 time);
    Outcome allReleased(quint32 time);

    quint32 wanted_ = 0;
    quint32 held_ = 0;
    quint32 releasedSince_ = 0; ///< the first time; each is to be pressed anew
    std::optional<quint32> first_; ///< when all were down for the first time
    std::optional<quint32> latest_; ///< when they were, of a press that may be a single one
    bool isSpoiled_ = false; ///< until all modifiers are up
};
