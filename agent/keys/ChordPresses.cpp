#include "agent/keys/ChordPresses.h"

#include <utility>

void ChordPresses::setModifiers(quint32 modifiers)
{
    *this = {};
    wanted_ = modifiers;
}

ChordPresses::Outcome ChordPresses::modifiersDidChange(quint32 held, quint32 time)
{
    const quint32 before = std::exchange(held_, held);
    if (wanted_ == 0)
        return Outcome::Nothing;
    if (held & ~wanted_)
        spoil();
    releasedSince_ |= wanted_ & ~held;
    if (before == wanted_)
        chordEnded(time);
    if (held == 0)
        return allReleased(time);
    if (held == wanted_ && before != wanted_)
        return chordBegan(time);
    return Outcome::Nothing;
}

void ChordPresses::somethingElseWasPressed(quint32 time)
{
    const bool isOlder = first_ && qint32(time - *first_) < 0;
    if (!isOlder)
        spoil();
}

void ChordPresses::spoil()
{
    isSpoiled_ = held_ != 0;
    first_.reset();
    latest_.reset();
}

ChordPresses::Outcome ChordPresses::chordBegan(quint32 time)
{
    if (isSpoiled_)
        return Outcome::Nothing;
    latest_.reset();
    if (isWaiting(time) && releasedSince_ == wanted_) {
        first_.reset();
        return Outcome::Double;
    }
    first_ = latest_ = time;
    releasedSince_ = 0;
    return Outcome::Nothing;
}

void ChordPresses::chordEnded(quint32 time)
{
    if (latest_ && quint32(time - *latest_) < shortest)
        spoil();
}

ChordPresses::Outcome ChordPresses::allReleased(quint32 time)
{
    isSpoiled_ = false;
    const auto began = std::exchange(latest_, std::nullopt);
    return began && quint32(time - *began) <= longestSingle ? Outcome::Single : Outcome::Nothing;
}
