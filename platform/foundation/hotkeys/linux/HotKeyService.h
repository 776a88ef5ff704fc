#pragma once

#include "platform/foundation/hotkeys/HotKeys.h"
#include "platform/foundation/hotkeys/linux/HotKeyConnection.h"

#include <QSocketNotifier>
#include <QTimer>
#include <vector>

/// The hot keys of this process: who has registered what, and the grabs behind it.
class HotKeyService
{
public:
    static HotKeyService &instance();

    /// Registers a combination that can be had at all.
    OSStatus add(VirtualKeyCode keyCode, quint32 modifiers, EventHotKeyID hotKeyID, EventHotKeyRef *hotKeyRef);
    OSStatus remove(EventHotKeyRef hotKeyRef);
    OSStatus status(EventHotKeyRef hotKeyRef) const;
    QList<quint32> freeModifiers(const QList<VirtualKeyCode> &keyCodes, const QList<quint32> &modifiers);

private:
    struct Registration
    {
        quintptr number = 0; ///< never used twice; its reference
        VirtualKeyCode keyCode;
        quint32 modifiers = 0;
        EventHotKeyID hotKeyID;
        std::vector<KeyGrab> grabs; ///< none while the keyboard lacks the key, or another program has taken it
    };

    using Registrations = std::vector<Registration>;

    HotKeyService();
    Registrations::const_iterator find(EventHotKeyRef hotKeyRef) const;
    bool connect();
    void open();
    void reportUnavailable(const QString &reason);
    bool isTaken(VirtualKeyCode keyCode, quint32 modifiers, const std::vector<KeyGrab> &grabs) const;

    void scheduleInput();
    void handleInput();
    void handlePress(const HotKeyInput &input);
    void dispatchPress(const HotKeyInput &input);
    void handleLoss();

    bool isSomethingMissing() const;
    void renewIfDue();
    void renew();
    void regrab();
    std::vector<std::vector<KeyGrab>> wantedGrabs() const;

    std::unique_ptr<HotKeyConnection> connection_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QTimer renewal_;
    KeyboardMapping keyboard_;
    Registrations registrations_;
    quintptr lastNumber_ = 0;
    QString reportedReason_;
};
