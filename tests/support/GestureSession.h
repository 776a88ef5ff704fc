#pragma once

#include "KTXConstants.h"
#include "KTXSettings.h"
#include "KeyPress.h"
#include "OtherClient.h"
#include "Wait.h"

#include "agent/keys/AgentHotKeys.h"
#include "agent/keys/GestureKeys.h"
#include "platform/foundation/hotkeys/HotKeys.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

/// The keys of a gesture in this process, beside another program that has the focus.
class GestureSession : public testing::Test
{
public:
    GestureSession()
    {
        listen();
        other.takeFocus();
        apply({});
    }

    /// These settings, and otherwise the defaults.
    void apply(const QVariantMap &changes)
    {
        QVariantMap settings;
        for (const KTXSetting &setting : KTXSettings())
            settings.insert(setting.key, setting.defaultValue);
        settings.insert(changes);
        hotKeys.apply(settings);
        keys.apply(settings);
    }
    /// Has all be handled that was pressed before: an answer of the server comes behind what it told, on each
    /// connection. What is asked of the server because of it has reached that when this is called once more.
    void settle()
    {
        keys.areModifiersDown();
        LMFreeHotKeyModifiers({VirtualKeyCode(0)}, {controlKey});
        runPendingEvents();
        runPendingEvents();
    }
    /// What has been heard since it was asked last, when all that was pressed before has been handled.
    QStringList heard()
    {
        settle();
        return std::exchange(heard_, {});
    }
    bool waitFor(const QString &what)
    {
        return waitUntil([&] { return heard_.contains(what); });
    }
    quint32 timeOf(const QString &what) const { return times_.value(what); }
    qsizetype count(const QString &what) const { return heard_.count(what); }

    void waitForServer(quint32 milliseconds)
    {
        const quint32 start = other.serverTime();
        EXPECT_TRUE(waitUntil([&] { return other.serverTime() - start >= milliseconds; }));
    }
    void holdModifiers()
    {
        keyDown(KEY_LEFTCTRL);
        keyDown(KEY_LEFTALT);
    }
    void releaseModifiers()
    {
        keyUp(KEY_LEFTALT);
        keyUp(KEY_LEFTCTRL);
    }
    /// Holds the modifiers and begins a gesture by a press.
    void beginHeld()
    {
        beginsHeld = true;
        holdModifiers();
        pressKey(KEY_RIGHT);
        EXPECT_TRUE(waitFor(QStringLiteral("pressed moveRightHotKey")));
        EXPECT_EQ(heard(), QStringList(QStringLiteral("pressed moveRightHotKey")));
    }

    bool beginsHeld = false; ///< with a press
    OtherClient other;
    AgentHotKeys hotKeys;
    GestureKeys keys{hotKeys};

private:
    void note(const QString &what, quint32 time = 0)
    {
        heard_.append(what);
        times_.insert(what, time);
    }
    void listen()
    {
        const auto hear = [this](auto signal, const char *name) {
            QObject::connect(&keys, signal, &keys, [this, name](quint32 time) { note(QString(name), time); });
        };
        const auto hearAction = [this](auto signal, const QString &name) {
            QObject::connect(&keys, signal, &keys, [this, name](const QString &action, quint32 time) {
                if (beginsHeld && name == u"pressed")
                    keys.beginHeld();
                note(name + u' ' + action, time);
            });
        };
        hearAction(&GestureKeys::pressed, QStringLiteral("pressed"));
        hearAction(&GestureKeys::repeated, QStringLiteral("repeated"));
        hearAction(&GestureKeys::keyPressed, QStringLiteral("key"));
        hear(&GestureKeys::modifiersReleased, "released");
        hear(&GestureKeys::singlePressed, "single");
        hear(&GestureKeys::doublePressed, "double");
        hear(&GestureKeys::somethingElse, "something else");
        QObject::connect(&keys, &GestureKeys::digitPressed, &keys,
            [this](int digit, quint32 time) { note(QStringLiteral("digit %1").arg(digit), time); });
        QObject::connect(&keys, &GestureKeys::keyboardGrabbed, &keys, [this] { note(QStringLiteral("grabbed")); });
        QObject::connect(&keys, &GestureKeys::keyboardRefused, &keys, [this] { note(QStringLiteral("refused")); });
        QObject::connect(&keys, &GestureKeys::lost, &keys, [this] { note(QStringLiteral("lost")); });
    }

    QStringList heard_;
    QHash<QString, quint32> times_; ///< of each, the last one
};
