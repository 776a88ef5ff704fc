#pragma once

#include "agent/keys/ActionKeyTable.h"
#include "agent/keys/ChordPresses.h"
#include "agent/keys/DigitKeys.h"
#include "agent/keys/KeyRepeat.h"
#include "agent/keys/KeyboardWatch.h"

#include <QElapsedTimer>
#include <QSet>

class AgentHotKeys;

/// What the keyboard does to begin a gesture and during one. Main thread; every event comes with the display's own time
/// of it, in milliseconds. At rest nothing but a modifier key wakes it up.
///
/// An action is the name under which its key is stored.
class GestureKeys : public QObject
{
    Q_OBJECT

public:
    /// Passes on the presses of these, which are to outlive it.
    explicit GestureKeys(AgentHotKeys &hotKeys);
    /// Nothing stays grabbed.
    ~GestureKeys() override;

    /// Goes by these settings: modifiers, keys and repeats. Called after each reading, behind the hot keys; during a
    /// gesture only once that has ended. A display that had gone is connected to again.
    void apply(const QVariantMap &settings);

    /// From now on modifiersReleased() is told, and repeated() of the keys that are held. Harmless when it is on.
    void beginHeld();
    /// Whether all activation modifiers are held by the server's word, which is asked (one round trip). Keys that are
    /// latched or locked are not held; of two keys for one modifier any one will do.
    bool areModifiersDown();

    /// Takes the whole keyboard for a persistent gesture: tried 10 times, 20 ms apart, while the event loop runs.
    /// keyboardGrabbed() or keyboardRefused() follows, also at once. modifiersReleased() is told no more. False where
    /// there is no gesture to begin: another program has the keyboard and the mouse, as one that locks the screen.
    bool grabKeyboard();
    void letKeyboardGo();

    /// Takes the keys of these digits (1 to 9, by their place on the keyboard) with the modifiers, and while the
    /// keyboard is grabbed also without; gives back those that are not among them. Called when labels appear.
    void takeDigits(const QSet<int> &digits);
    /// Those that it got: not the key of an action, and nobody else's.
    QSet<int> takenDigits() const;

    /// Whether another program has keyboard and mouse to itself, as one that locks the screen. One round trip.
    bool isScreenTaken() { return keyboard_->isScreenTaken(); }

    /// The keyboard's bell: a key leads nowhere.
    void ring() { keyboard_->ring(); }

    /// The gesture is over: gives back everything, ends all repeats, tells of no release. Harmless at any time.
    void end();

Q_SIGNALS:
    /// A hot key, which means: with the modifiers. They may be up again by now; see areModifiersDown().
    void pressed(const QString &action, quint32 time);
    /// The movement key that was pressed last is held down still. Only while a gesture is on.
    void repeated(const QString &action, quint32 time);
    /// At least one of the activation modifiers is up. Told once for beginHeld(), also where another program has the
    /// keyboard; where that holds up all keys, once it lets them go.
    void modifiersReleased(quint32 time);
    /// All activation modifiers, and nothing else, have been pressed and released within 300 ms; but not within 10 ms,
    /// in which only programs do.
    void singlePressed(quint32 time);
    /// They have been pressed for the second time within 400 ms; the first time told singlePressed() as well.
    void doublePressed(quint32 time);

    void keyboardGrabbed();
    /// Another program has it.
    void keyboardRefused();
    /// The key of an action while the keyboard is grabbed, with the modifiers, a part of them or none. Plain Escape is
    /// always the action that cancels.
    void keyPressed(const QString &action, quint32 time);
    /// Another key, or a mouse button, whose click still goes where it went; only while the keyboard is grabbed.
    void somethingElse(quint32 time);
    void digitPressed(int digit, quint32 time);

    /// The display has gone, and with it all that was taken: the gesture is over.
    void lost();

private:
    void handleHotKey(const QString &action, quint32 time);
    void handleModifiers(quint32 held, quint32 time);
    void handleKey(const KeyEvent &key);
    void handleOurKey(const KeyEvent &key);
    void handleRelease(const KeyEvent &key);
    void handleButton(bool isWheel, quint32 time);
    void handleDigit(int digit, quint32 time);
    void handleLoss();

    void startRepeat(const QString &action);
    void repeat();
    void stopRepeat();
    void checkRelease();
    void tellRelease(quint32 time);
    void tellChord(ChordPresses::Outcome outcome, quint32 time);
    void somethingElseWasPressed(quint32 time);
    void updateChordWatch();
    void tryToGrab();
    void note(quint32 time);
    quint32 timeNow() const;
    void updateWatch();

    std::unique_ptr<Keyboard> keyboard_;
    KeyboardWatch watch_;
    ActionKeyTable keys_;
    ChordPresses chord_;
    QTimer chordWatch_; ///< runs while it matters what else is pressed
    KeyRepeat repeat_;
    QString repeatedAction_;
    DigitKeys digitKeys_;
    QSet<int> digits_; ///< that were asked for
    QTimer releaseCheck_; ///< runs while the modifiers' release is waited for
    QTimer grabRetry_;
    int grabTries_ = 0;
    bool isOn_ = false; ///< a gesture
    bool isGrabbed_ = false;
    quint32 lastTime_ = 0;
    quint32 held_ = 0; ///< modifiers, as they were last told
    quint32 heldSince_ = 0; ///< the time of the press that began the gesture
    QElapsedTimer sinceLastTime_;
};
