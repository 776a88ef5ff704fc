#pragma once

#include "KTXHotKey.h"
#include "OtherClient.h"
#include "Wait.h"

#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <gtest/gtest.h>

/// Objects of the hot key class, beside another program that has the focus. All are gone with the test.
class HotKeyObjects : public testing::Test
{
public:
    HotKeyObjects()
    {
        NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            &observer, [this](const NSNotification &one) { posted.append(one); }, KTXHotKeyPressed);
        other.takeFocus();
    }
    ~HotKeyObjects() override { KTXHotKey::unregisterAllHotkeys(); }

    static std::shared_ptr<KTXHotKey> created(VirtualKeyCode keyCode, quint32 modifiers = controlKey)
    {
        return KTXHotKey::createWithKeyCodeAndModifiers(keyCode, modifiers);
    }
    static size_t count() { return KTXHotKey::assignedHotKeys().size(); }
    bool isHeld(int evdev, quint16 modifiers = XCB_MOD_MASK_CONTROL) { return other.isHeldElsewhere(evdev, modifiers); }
    /// Waits for the next notification; the hot key that it is of.
    KTXHotKey *next()
    {
        EXPECT_TRUE(waitUntil([this] { return !posted.isEmpty(); }));
        return posted.isEmpty() ? nullptr : posted.takeFirst().object.value<KTXHotKey *>();
    }

    QObject observer;
    QList<NSNotification> posted;
    OtherClient other;
};
