// Hot keys that nobody wants for now.

#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "OtherClient.h"
#include "agent/keys/AgentHotKeys.h"
#include "agent/life/AgentSettings.h"
#include "platform/foundation/hotkeys/HotKeys.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

bool isLeftHeld()
{
    return OtherClient().isHeldElsewhere(KEY_LEFT, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1);
}

} // namespace

TEST(ReleasedKeys, stayFreeWhenTheKeyboardChanges)
{
    AgentHotKeys keys;
    keys.apply(effectiveSettings({}));
    ASSERT_FALSE(keys.isAnyRefused());
    EXPECT_TRUE(isLeftHeld());
    keys.release();
    NSNotificationCenter::defaultCenter()->postNotificationNameObject(LMHotKeysDidChange, {});
    EXPECT_FALSE(isLeftHeld());
    for (const AgentHotKey &key : keys.hotKeys())
        EXPECT_EQ(key.cause, KTXCauseGivenUp);
    keys.apply(effectiveSettings({}));
    EXPECT_FALSE(keys.isAnyRefused());
    EXPECT_TRUE(isLeftHeld());
}
