#pragma once

#include "OtherClient.h"

#include "platform/foundation/hotkeys/HotKeys.h"

#include <QList>
#include <gtest/gtest.h>

/// Hot keys of this process, beside another program that has the focus.
class HotKeySession : public testing::Test
{
public:
    HotKeySession();
    ~HotKeySession() override;

    /// What registering gives; what it registers is given up with the test.
    OSStatus add(VirtualKeyCode keyCode, quint32 modifiers, quint32 id = 1, quint32 options = kEventHotKeyNoOptions);
    /// The reference of the last one that was registered.
    EventHotKeyRef last() const { return references_.isEmpty() ? nullptr : references_.last(); }

    /// The ids of the hot keys that have been pressed since it was asked last, in order.
    QList<quint32> pressed();
    /// Waits, without doing anything else, until so many presses have been heard since then.
    bool waitForPresses(int count);

    OtherClient other;

private:
    QList<EventHotKeyRef> references_;
};
