#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"

#include <gtest/gtest.h>

namespace {

struct AgreedText
{
    const char *name;
    QString constant;
    const char *text;
};

// Typed once more on purpose: the agent is built apart, and a text changed by accident cuts the two off from each
// other.
const std::vector<AgreedText> &agreedTexts()
{
    static const std::vector<AgreedText> texts{
        {"KTXLMAppID", KTXLMAppID, "com.quorvane.Lumaroo"},
        {"KTXLMAgentID", KTXLMAgentID, "com.quorvane.LumarooAgent"},
        {"KTXShouldDebug", KTXShouldDebug, "Debug"},
        {"KTXFirstLaunch", KTXFirstLaunch, "firstLaunch"},
        {"KTXModifierMask", KTXModifierMask, "modifierKeyMask"},
        {"KTXSuppressHKeyTaken", KTXSuppressHKeyTaken, "suppressHotkeyTakenAlert"},
        {"KTXsuppressHKeysTaken", KTXsuppressHKeysTaken, "suppressHotkeysTakenAlert"},
        {"KTXSuppressModAlert", KTXSuppressModAlert, "suppressModifierAlert"},
        {"KTXOverlayColor", KTXOverlayColor, "overlayColor"},
        {"KTXUpPref", KTXUpPref, "moveUpHotKey"},
        {"KTXRightPref", KTXRightPref, "moveRightHotKey"},
        {"KTXDownPref", KTXDownPref, "moveDownHotKey"},
        {"KTXLeftPref", KTXLeftPref, "moveLeftHotKey"},
        {"KTXUnderPref", KTXUnderPref, "moveUnderHotKey"},
        {"KTXOpenPrefPanePref", KTXOpenPrefPanePref, "openPrefPane"},
        {"KTXScreenshotPref", KTXScreenshotPref, "takeScreenshot"},
        {"KTXScreenClosePref", KTXScreenClosePref, "closeWindow"},
        {"KTXPreviewPref", KTXPreviewPref, "showPreview"},
        {"KTXCancelPref", KTXCancelPref, "CancelSelection"},
        {"KTXSnapPref", KTXSnapPref, "SnapToSelection"},
        {"KTXKeycode", KTXKeycode, "keycode"},
        {"KTXUnichar", KTXUnichar, "unichar"},
        {"KTXRepeat", KTXRepeat, "repeatedKey"},
        {"SUEnableAutomaticChecks", SUEnableAutomaticChecks, "SUEnableAutomaticChecks"},
        {"KTXHideBetaNotes", KTXHideBetaNotes, "hideBetaNotes"},
        {"KTXAutoRepeat", KTXAutoRepeat, "autoRepeat"},
        {"KTXRepeatRate", KTXRepeatRate, "repeatRate"},
        {"KTXInitialDelay", KTXInitialDelay, "initialDelay"},
        {"KTXAnimate", KTXAnimate, "AnimateOverlay"},
        {"KTXHWrap", KTXHWrap, "EnableHorizontalWrap"},
        {"KTXVWrap", KTXVWrap, "EnableVerticalWrap"},
        {"KTXHSort", KTXHSort, "HorizontalSortOrder"},
        {"KTXVSort", KTXVSort, "VerticalSortOrder"},
        {"KTXCycleAscending", KTXCycleAscending, "ActionKeyCyclesAscending"},
        {"KTXActivateDoubleClick", KTXActivateDoubleClick, "doubleClickToActivate"},
        {"KTXPersistentDoubleClick", KTXPersistentDoubleClick, "doubleClickForPersistent"},
        {"KTXsuppressMissionControl", KTXsuppressMissionControl, "suppressMissionControl"},
        {"KTXShowHidden", KTXShowHidden, "ShowHidden"},
        {"KTXVisualMode", KTXVisualMode, "visualMode"},
        {"KTXShouldToggle", KTXShouldToggle, "Toggle"},
        {"KTXShouldBeep", KTXShouldBeep, "Beep"},
        {"KTXTutorialDone", KTXTutorialDone, "tutorialWasClosed"},
        {"KTXExcludedApplications", KTXExcludedApplications, "excludedApplications"},
        {"KTXShowInTray", KTXShowInTray, "showInTray"},
        {"KTXWelcomeShown", KTXWelcomeShown, "welcomeWasShown"},
        {"KTXLMPrefPaneLaunched", KTXLMPrefPaneLaunched, "Lumaroo PrefPane Launched"},
        {"KTXLMPrefsChanged", KTXLMPrefsChanged, "Lumaroo Preferences Changed"},
        {"KTXLMAgentShouldTerminate", KTXLMAgentShouldTerminate, "Lumaroo Agent Should Terminate"},
        {"KTXLMRunTutorial", KTXLMRunTutorial, "Lumaroo Should Run Tutorial"},
        {"KTXLMAgentLaunched", KTXLMAgentLaunched, "Lumaroo Agent Launched"},
        {"KTXLMAgentIsTerminating", KTXLMAgentIsTerminating, "Lumaroo Agent Is Terminating"},
        {"KTXLMPrefPaneLaunchAgent", KTXLMPrefPaneLaunchAgent, "Launch Lumaroo Agent"},
        {"KTXPrefPaneToTab", KTXPrefPaneToTab, "Lumaroo PrefPane Switch to tab"},
        {"KTXLMAgenCloseCurrentApp", KTXLMAgenCloseCurrentApp, "Lumaroo Agent Quit Current App"},
        {"KTXLMAgentDisableAutoLaunch", KTXLMAgentDisableAutoLaunch, "Lumaroo Agent shouldn't auto-launch"},
        {"KTXChangeColor", KTXChangeColor, "KTXChangeColor"},
        {"KTXLMAgentVersion", KTXLMAgentVersion, "KTXLMAgentVersion"},
        {"KTXHotKeyTakenMessage", KTXHotKeyTakenMessage, "hotKeyTakenMessageText"},
        {"KTXHotKeyTakenInfo", KTXHotKeyTakenInfo, "hotKeyTakenInformationText"},
        {"KTXHotKeysTakenMessage", KTXHotKeysTakenMessage, "hotKeysTakenMessageText"},
        {"KTXHotKeysTakenInfo", KTXHotKeysTakenInfo, "hotKeysTakenInformationText"},
        {"KTXLastModifierMessage", KTXLastModifierMessage, "deselectLastModifierMessageText"},
        {"KTXLastModifierInfo", KTXLastModifierInfo, "deselectLastModifierInformationText"},
        {"KTXURLUnavailableMessage", KTXURLUnavailableMessage, "URLUnavailableMessageText"},
        {"KTXURLUnavailableInfo", KTXURLUnavailableInfo, "URLUnavailableInformationText"},
        {"KTXWindowPID", KTXWindowPID, "windowPID"},
        {"KTXWindowRect", KTXWindowRect, "windowRect"},
        {"KTXWindowID", KTXWindowID, "windowID"},
        {"KTXWindowName", KTXWindowName, "windowName"},
        {"KTXWindowLevel", KTXWindowLevel, "windowLevel"},
        {"KTXWindowAlpha", KTXWindowAlpha, "windowAlpha"},
        {"KTXWindowIsIgnored", KTXWindowIsIgnored, "windowIsIgnored"},
        {"KTXWindowOrder", KTXWindowOrder, "windowOrder"},
        {"KTXAppName", KTXAppName, "appName"},
        {"KTXWindowsAbove", KTXWindowsAbove, "windowsAbove"},
        {"KTXWindowsBelow", KTXWindowsBelow, "windowsBelow"},
        {"KTXWindowsToLeft", KTXWindowsToLeft, "windowsToLeft"},
        {"KTXWindowsToRight", KTXWindowsToRight, "windowsToRight"},
        {"KTXWindowsUnderneath", KTXWindowsUnderneath, "windowsUnderneath"},
        {"KTXShowOverlay", KTXShowOverlay, "showOverlay"},
        {"KTXHideOverlay", KTXHideOverlay, "hideOverlay"},
        {"KTXHideHUD", KTXHideHUD, "hideHUD"},
        {"KTXShowContent", KTXShowContent, "showContent"},
        {"KTXLumarooIsDisabled", KTXLumarooIsDisabled, "LumarooIsDisabled"},
        {"KTXLumarooIsEnabled", KTXLumarooIsEnabled, "LumarooIsEnabled"},
    };
    return texts;
}

} // namespace

TEST(Constants, everyTextIsWhatPaneAndAgentAgreedOnByteForByte)
{
    for (const AgreedText &agreed : agreedTexts())
        EXPECT_EQ(agreed.constant.toUtf8(), QByteArray(agreed.text)) << agreed.name;
}

TEST(Constants, noTextStandsForTwoThings)
{
    QSet<QString> seen;
    for (const AgreedText &agreed : agreedTexts()) {
        EXPECT_FALSE(seen.contains(agreed.constant)) << agreed.name;
        seen += agreed.constant;
    }
}

TEST(Constants, everyConstantOfTheHeaderIsChecked)
{
    QFile header(qEnvironmentVariable("LUMAROO_SOURCE") + "/KTX classes/KTXConstants.h");
    ASSERT_TRUE(header.open(QIODevice::ReadOnly));
    EXPECT_EQ(header.readAll().count("QStringLiteral("), qsizetype(agreedTexts().size()));
}

TEST(Constants, theElevenActionKeysStandInTheOrderOfTheTable)
{
    const std::vector<std::pair<QString, int>> expected{
        {"moveUpHotKey", 126},
        {"moveRightHotKey", 124},
        {"moveDownHotKey", 125},
        {"moveLeftHotKey", 123},
        {"moveUnderHotKey", 44},
        {"openPrefPane", 43},
        {"takeScreenshot", 1},
        {"closeWindow", 13},
        {"showPreview", 49},
        {"CancelSelection", 53},
        {"SnapToSelection", 36},
    };
    std::vector<std::pair<QString, int>> found;
    for (const KTXActionKey &key : KTXActionKeys())
        found.emplace_back(key.preferenceName, int(key.defaultKeyCode.number()));
    EXPECT_EQ(found, expected);
}

TEST(Constants, theModifierBitsAreTheStoredOnes)
{
    EXPECT_EQ(KTXCommandModifier, 0x100u);
    EXPECT_EQ(KTXShiftModifier, 0x200u);
    EXPECT_EQ(KTXOptionModifier, 0x800u);
    EXPECT_EQ(KTXControlModifier, 0x1000u);
    EXPECT_EQ(KTXAllModifiers, 0x1B00u);
}
