// Which of the agent's combinations are registered, and what is offered instead of those that others hold.

#include "CapturedLog.h"
#include "GestureSession.h"
#include "KTXActionKeys.h"
#include "KTXHotKeyEntry.h"
#include "KTXModifiers.h"

namespace {

constexpr quint32 command = KTXCommandModifier, control = KTXControlModifier, option = KTXOptionModifier,
                  shift = KTXShiftModifier;
constexpr quint16 serverControlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
constexpr quint16 super = XCB_MOD_MASK_4;
constexpr quint32 F5 = 96, keypadFive = 87, keyBesideShift = 10;

class ActivationKeys : public GestureSession
{
public:
    QString refusal(const QString &action) const
    {
        const QList<AgentHotKey> all = hotKeys.hotKeys();
        const auto found =
            std::find_if(all.cbegin(), all.cend(), [&action](const AgentHotKey &one) { return one.action == action; });
        return found == all.cend() ? QStringLiteral("no such action") : found->refusal;
    }
    void applyMask(quint32 mask, QVariantMap changes = {})
    {
        changes.insert(KTXModifierMask, qlonglong(mask));
        apply(changes);
    }
    bool isHeld(int key, quint16 modifiers) { return other.isHeldElsewhere(key, modifiers); }

    CapturedLog log;
};

const QString typing = QStringLiteral("Shift alone would take the characters you type");

} // namespace

TEST_F(ActivationKeys, haveNoOthersToOfferWhileNobodyHoldsThem)
{
    EXPECT_TRUE(hotKeys.freeModifiers().isEmpty());
    ASSERT_TRUE(other.grabKey(KEY_S, XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL));
    applyMask(shift | control);
    EXPECT_EQ(refusal(KTXScreenshotPref), "another program holds it");
    EXPECT_TRUE(hotKeys.freeModifiers().isEmpty()) << "it does not move";
}

TEST_F(ActivationKeys, ofMovementThatAnotherProgramHoldsHaveFreeModifiersBestFirst)
{
    hotKeys.release();
    ASSERT_TRUE(other.grabKey(KEY_LEFT, serverControlAndAlt));
    apply({});
    EXPECT_EQ(refusal(KTXLeftPref), "another program holds it");
    EXPECT_EQ(hotKeys.freeModifiers(),
        (QList<quint32>{command | control, command | control | option, command | option, command | control | shift,
            command | option | shift, command | shift, control | option | shift, command | control | option | shift,
            command}));
    // What was tried is not held.
    for (const quint16 modifiers : {super, quint16(super | XCB_MOD_MASK_CONTROL), quint16(super | XCB_MOD_MASK_1)})
        EXPECT_FALSE(isHeld(KEY_UP, modifiers));

    other.ungrabKey(KEY_LEFT, serverControlAndAlt);
    apply({});
    EXPECT_EQ(refusal(KTXLeftPref), QString());
    EXPECT_TRUE(hotKeys.freeModifiers().isEmpty());
}

TEST_F(ActivationKeys, haveNoModifiersToOfferThatAreTakenForOneOfThem)
{
    hotKeys.release();
    ASSERT_TRUE(other.grabKey(KEY_LEFT, serverControlAndAlt));
    ASSERT_TRUE(other.grabKey(KEY_DOWN, super | XCB_MOD_MASK_CONTROL));
    // With Num Lock on, which is a part of it.
    ASSERT_TRUE(other.grabKey(KEY_SLASH, super | XCB_MOD_MASK_1 | XCB_MOD_MASK_2));
    ASSERT_TRUE(other.grabKey(KEY_S, super | serverControlAndAlt)) << "does not move";
    apply({});
    EXPECT_EQ(hotKeys.freeModifiers(),
        (QList<quint32>{command | control | option, command | control | shift, command | option | shift,
            command | shift, control | option | shift, command | control | option | shift, command}));
    hotKeys.release();
    EXPECT_TRUE(hotKeys.freeModifiers().isEmpty());
}

TEST_F(ActivationKeys, doNotLoseWhatTheyHaveWhenOthersAreTried)
{
    ASSERT_TRUE(other.grabKey(KEY_LEFT, super | XCB_MOD_MASK_CONTROL));
    applyMask(command | control);
    EXPECT_TRUE(isHeld(KEY_RIGHT, super | XCB_MOD_MASK_CONTROL));
    EXPECT_TRUE(isHeld(KEY_S, super | XCB_MOD_MASK_CONTROL));
    EXPECT_FALSE(hotKeys.freeModifiers().contains(command | control));
    EXPECT_EQ(hotKeys.freeModifiers().first(), command | control | option);
    pressKey(KEY_RIGHT, {KEY_LEFTMETA, KEY_LEFTCTRL});
    EXPECT_TRUE(waitFor("pressed moveRightHotKey"));
}

TEST_F(ActivationKeys, areNotTakenFromTypingByShiftAlone)
{
    applyMask(shift,
        {{KTXUpPref, hotKeyEntry(keypadFive)}, {KTXDownPref, hotKeyEntry(keyBesideShift)},
            {KTXScreenshotPref, hotKeyEntry(F5)}});
    for (const QString &action :
        {KTXUpPref, KTXDownPref, KTXUnderPref, KTXOpenPrefPanePref, KTXScreenClosePref, KTXPreviewPref})
        EXPECT_EQ(refusal(action), typing) << action.toStdString();
    for (const QString &action : {KTXLeftPref, KTXRightPref, KTXScreenshotPref, KTXCancelPref, KTXSnapPref})
        EXPECT_EQ(refusal(action), QString()) << action.toStdString();
    EXPECT_FALSE(isHeld(KEY_W, XCB_MOD_MASK_SHIFT));
    EXPECT_TRUE(isHeld(KEY_LEFT, XCB_MOD_MASK_SHIFT));
    EXPECT_EQ(log.linesContaining(typing).size(), 6);
    // With another one besides it does not type.
    applyMask(shift | control);
    EXPECT_EQ(refusal(KTXScreenClosePref), QString());
    EXPECT_TRUE(isHeld(KEY_W, XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL));
    EXPECT_TRUE(hotKeys.freeModifiers().isEmpty());
}

TEST_F(ActivationKeys, areAllLeftToOthersWherePressingTwiceIsWhatBegins)
{
    apply({{KTXActivateDoubleClick, true}});
    for (const KTXActionKey &action : KTXActionKeys())
        EXPECT_EQ(refusal(action.preferenceName), "only pressing the modifiers twice begins a selection");
    EXPECT_FALSE(isHeld(KEY_RIGHT, serverControlAndAlt));
    EXPECT_EQ(log.lines(), QStringList());
    apply({});
    EXPECT_EQ(refusal(KTXRightPref), QString());
    EXPECT_TRUE(isHeld(KEY_RIGHT, serverControlAndAlt));
}
