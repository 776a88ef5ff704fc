#pragma once

#include "agent/gestures/GestureRefusal.h"
#include "agent/gestures/GestureSettings.h"
#include "agent/gestures/SessionWatch.h"
#include "agent/keys/GestureKeys.h"

#include <QHash>
#include <QObject>
#include <QTimer>
#include <optional>

/// Leads a gesture: from the keyboard through the rule of movement to the mark on screen and the window turned to. Each
/// key is one reading of all windows, and nothing goes on between two gestures.
class Gestures : public QObject
{
    Q_OBJECT

public:
    /// All three outlive it.
    Gestures(WindowSystem &windows, Overlay &overlay, GestureKeys &keys);
    ~Gestures() override;

    bool isOn() const { return gesture_.state() != Gesture::State::Idle; }
    /// Goes by these settings from the next gesture on.
    void apply(const QVariantMap &settings);
    /// Ends the gesture that is on as if nothing had been; harmless where none is.
    void cancel();
    /// Something that no key asks for happens now. A selection that a movement begins so takes nothing from the
    /// keyboard.
    void command(GestureEvent event);

    /// Whether another program has keyboard and mouse, as one that locks the screen: nothing is to be shown above that.
    bool isScreenTaken() { return keys_.isScreenTaken(); }
    /// 0 where none is on.
    quint32 selected() const { return run_ ? run_->selection.selected() : 0; }
    /// Selects a window without a key, as one that has just come up; harmless where none is on.
    void select(quint32 windowID);
    /// Lets go of windows that have gone; the selection goes on with a neighbour. Harmless where none is on.
    void followWindows();
    /// Something has been done with the selection: it stays for another while. Harmless where none is on.
    void stay();
    /// A window that has been asked to close is not turned to, until it is known how it took that.
    void beginClosing(quint32 windowID) { closing_ += windowID; }
    void endClosing(quint32 windowID) { closing_ -= windowID; }

Q_SIGNALS:
    void began();
    /// Another window is selected. Titles are of one line.
    void moved(const QString &title);
    void accepted(const QString &title);
    void cancelled();
    void refused(const GestureRefusal &refusal);
    /// None is on any more.
    void over();
    /// The key of an action that neither moves nor ends a selection, at any time.
    void asked(const QString &action, quint32 time);

private:
    /// What one gesture knows; gone with it.
    struct Run
    {
        explicit Run(const GestureSettings &chosen) : settings(chosen), selection(chosen.selection) { }

        GestureSettings settings;
        Selection selection;
        WindowWorld world;
        bool takesKeys = true; ///< those of the digits, when they come up
        bool isCurrent = false; ///< read for the event that is being taken
        quint32 origin = 0; ///< the window with the focus when it began
        QHash<int, quint32> labels; ///< digits with their windows
    };

    /// A window that is turned to, and how it is told of.
    struct Destination
    {
        quint32 windowID = 0; ///< 0 for none
        QString title;
    };

    void hearPress(const QString &action, quint32 time);
    void take(const GestureEvent &event);
    bool perform(GestureStep step, const GestureEvent &event);
    bool begin(const GestureEvent &event);
    bool mayBegin();
    void watchSession(const GestureEvent &event);
    bool move(const GestureEvent &event);
    bool read();
    bool showSelected(quint32 before);
    void show();
    void label();
    void choose(int digit);
    void accept(quint32 time);
    void goBack(quint32 time);
    void finish();
    void takeMarkAway();
    void tellOfWindow(quint32 windowID, bool hasClosed);
    void endUnless(bool goesOn);
    void interrupt(quint32 time) { take({.kind = GestureEvent::Kind::Interrupted, .time = time}); }
    QString title(quint32 windowID) const;

    WindowSystem &windows_;
    Overlay &overlay_;
    GestureKeys &keys_;
    SessionWatch session_;
    GestureSettings settings_;
    Gesture gesture_;
    std::optional<Run> run_;
    Destination before_; ///< the window with the focus before the last one that was accepted
    Destination turnedTo_; ///< the last one
    QSet<quint32> closing_;
    QTimer labels_;
    QTimer limit_;
    QTimer farewell_; ///< while the mark stands at a window that is being turned to
};
