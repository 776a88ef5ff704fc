// What the hot key class asks of the system, call by call. Its two options mean the same on this desktop, so only the
// calls can show them: the system's two operations stand in this program instead.

#include "KTXHotKey.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

QStringList calls;
OSStatus answer = noErr;
quintptr lastReference = 0;

QString fourCharacters(quint32 code)
{
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += QChar::fromLatin1(char(code >> shift & 0xff));
    return text;
}

class HotKeyCalls : public testing::Test
{
protected:
    HotKeyCalls()
    {
        calls.clear();
        answer = noErr;
        lastReference = 0;
    }
    ~HotKeyCalls() override { KTXHotKey::unregisterAllHotkeys(); }
};

} // namespace

OSStatus RegisterEventHotKey(VirtualKeyCode keyCode, quint32 modifiers, EventHotKeyID hotKeyID, EventTargetRef target,
    quint32 options, EventHotKeyRef *hotKeyRef)
{
    EXPECT_EQ(target, GetApplicationEventTarget());
    calls += QStringLiteral("register %1 %2 %3 %4 options %5")
                 .arg(keyCode.number())
                 .arg(modifiers, 0, 16)
                 .arg(fourCharacters(hotKeyID.signature))
                 .arg(hotKeyID.id)
                 .arg(options);
    if (answer == noErr)
        *hotKeyRef = reinterpret_cast<EventHotKeyRef>(++lastReference);
    return answer;
}

OSStatus UnregisterEventHotKey(EventHotKeyRef hotKeyRef)
{
    calls += QStringLiteral("unregister %1").arg(reinterpret_cast<quintptr>(hotKeyRef));
    return noErr;
}

TEST_F(HotKeyCalls, registeringHasNoOptionsWhateverExclusiveHolds)
{
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(126, 0x1800);
    EXPECT_TRUE(calls.isEmpty());
    for (const quint32 exclusive : {0U, 1U, 7U}) {
        calls.clear();
        hotKey->setHotKeyRef(nullptr);
        hotKey->setExclusive(exclusive);
        EXPECT_EQ(hotKey->registerAsHotKey(), noErr);
        EXPECT_EQ(calls, QStringList{"register 126 1800 KTXk 0 options 0"}) << exclusive;
    }
}

TEST_F(HotKeyCalls, registeringAgainGivesUpFirst)
{
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(126, 0x1800);
    hotKey->registerAsHotKey();
    calls.clear();
    answer = eventHotKeyExistsErr;
    EXPECT_EQ(hotKey->registerAsHotKey(), eventHotKeyExistsErr);
    EXPECT_EQ(calls, (QStringList{"unregister 1", "register 126 1800 KTXk 0 options 0"}));
    EXPECT_FALSE(hotKey->isHotKeyRegistered());
}

TEST_F(HotKeyCalls, aProbeIsExclusiveHasANumberOfItsOwnAndIsGivenUpAtOnce)
{
    EXPECT_TRUE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(1, 0x1000));
    EXPECT_EQ(calls, (QStringList{"register 1 1000 KTXk 9999 options 1", "unregister 1"}));
    calls.clear();
    answer = paramErr;
    EXPECT_FALSE(KTXHotKey::isAvailableWithKeyCodeAndModifiers(1, 0x1000));
    EXPECT_EQ(calls, QStringList{"register 1 1000 KTXk 9999 options 1"});
}

TEST_F(HotKeyCalls, aChangeProbesGivesUpAndRegisters)
{
    KTXHotKey::createWithKeyCodeAndModifiers(126, 0x1800);
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(125, 0x1800);
    hotKey->registerAsHotKey();
    calls.clear();
    EXPECT_TRUE(hotKey->setToKeyCodeWithModifiersForceChanges(13, 0x100, false));
    EXPECT_EQ(calls,
        (QStringList{"register 13 100 KTXk 9999 options 1", "unregister 2", "unregister 1",
            "register 13 100 KTXk 1 options 0"}));
}

TEST_F(HotKeyCalls, aForcedChangeToATakenCombinationIsTriedAllTheSame)
{
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(125, 0x1800);
    answer = eventHotKeyExistsErr;
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(13, 0x100, true));
    EXPECT_EQ(calls, (QStringList{"register 13 100 KTXk 9999 options 1", "register 13 100 KTXk 0 options 0"}));
}

TEST_F(HotKeyCalls, whatChangesNothingMakesNoCall)
{
    const auto hotKey = KTXHotKey::createWithKeyCodeAndModifiers(125, 0x1800);
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(125, 0x1800, true));
    hotKey->registerAsHotKey();
    calls.clear();
    EXPECT_TRUE(hotKey->setToKeyCodeWithModifiersForceChanges(125, 0x1800, true));
    EXPECT_FALSE(hotKey->setToKeyCodeWithModifiersForceChanges(13, 0, true));
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(KTXHotKey::assignedHotKeys().size(), 1U);
}
