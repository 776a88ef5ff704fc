#pragma once

#include <QString>

// Every text that pane and agent agree on, each defined once. The texts are what is stored and sent: they must match
// byte for byte.

// Whose settings, and whose word.

/// The settings domain of the agent, and the object of every notification that the pane posts.
inline const QString KTXLMAppID = QStringLiteral("com.quorvane.Lumaroo");
/// The agent's bundle identifier, and the object of the changes that it announces.
inline const QString KTXLMAgentID = QStringLiteral("com.quorvane.LumarooAgent");

// Settings keys.

inline const QString KTXShouldDebug = QStringLiteral("Debug");
inline const QString KTXFirstLaunch = QStringLiteral("firstLaunch");
inline const QString KTXModifierMask = QStringLiteral("modifierKeyMask");
inline const QString KTXSuppressHKeyTaken = QStringLiteral("suppressHotkeyTakenAlert");
inline const QString KTXsuppressHKeysTaken = QStringLiteral("suppressHotkeysTakenAlert");
inline const QString KTXSuppressModAlert = QStringLiteral("suppressModifierAlert");
inline const QString KTXOverlayColor = QStringLiteral("overlayColor");

inline const QString KTXUpPref = QStringLiteral("moveUpHotKey");
inline const QString KTXRightPref = QStringLiteral("moveRightHotKey");
inline const QString KTXDownPref = QStringLiteral("moveDownHotKey");
inline const QString KTXLeftPref = QStringLiteral("moveLeftHotKey");
inline const QString KTXUnderPref = QStringLiteral("moveUnderHotKey");
inline const QString KTXOpenPrefPanePref = QStringLiteral("openPrefPane");
inline const QString KTXScreenshotPref = QStringLiteral("takeScreenshot");
inline const QString KTXScreenClosePref = QStringLiteral("closeWindow");
inline const QString KTXPreviewPref = QStringLiteral("showPreview");
inline const QString KTXCancelPref = QStringLiteral("CancelSelection");
inline const QString KTXSnapPref = QStringLiteral("SnapToSelection");

/// The entries of an action key's dictionary; the agent alone uses the latter two.
inline const QString KTXKeycode = QStringLiteral("keycode");
inline const QString KTXUnichar = QStringLiteral("unichar");
inline const QString KTXRepeat = QStringLiteral("repeatedKey");

inline const QString SUEnableAutomaticChecks = QStringLiteral("SUEnableAutomaticChecks");
/// Followed by the number of the build whose notes are hidden.
inline const QString KTXHideBetaNotes = QStringLiteral("hideBetaNotes");
inline const QString KTXAutoRepeat = QStringLiteral("autoRepeat");
inline const QString KTXRepeatRate = QStringLiteral("repeatRate");
inline const QString KTXInitialDelay = QStringLiteral("initialDelay");
inline const QString KTXAnimate = QStringLiteral("AnimateOverlay");
inline const QString KTXHWrap = QStringLiteral("EnableHorizontalWrap");
inline const QString KTXVWrap = QStringLiteral("EnableVerticalWrap");
inline const QString KTXHSort = QStringLiteral("HorizontalSortOrder");
inline const QString KTXVSort = QStringLiteral("VerticalSortOrder");
inline const QString KTXCycleAscending = QStringLiteral("ActionKeyCyclesAscending");
inline const QString KTXActivateDoubleClick = QStringLiteral("doubleClickToActivate");
inline const QString KTXPersistentDoubleClick = QStringLiteral("doubleClickForPersistent");

// Settings keys of the agent alone.

inline const QString KTXsuppressMissionControl = QStringLiteral("suppressMissionControl");
inline const QString KTXShowHidden = QStringLiteral("ShowHidden");
inline const QString KTXVisualMode = QStringLiteral("visualMode");
inline const QString KTXShouldToggle = QStringLiteral("Toggle");
inline const QString KTXShouldBeep = QStringLiteral("Beep");
inline const QString KTXTutorialDone = QStringLiteral("tutorialWasClosed");
inline const QString KTXExcludedApplications = QStringLiteral("excludedApplications");
inline const QString KTXShowInTray = QStringLiteral("showInTray");
inline const QString KTXWelcomeShown = QStringLiteral("welcomeWasShown");

// Notifications.

inline const QString KTXLMPrefPaneLaunched = QStringLiteral("Lumaroo PrefPane Launched");
inline const QString KTXLMPrefsChanged = QStringLiteral("Lumaroo Preferences Changed");
inline const QString KTXLMAgentShouldTerminate = QStringLiteral("Lumaroo Agent Should Terminate");
inline const QString KTXLMRunTutorial = QStringLiteral("Lumaroo Should Run Tutorial");
inline const QString KTXLMAgentLaunched = QStringLiteral("Lumaroo Agent Launched");
inline const QString KTXLMAgentIsTerminating = QStringLiteral("Lumaroo Agent Is Terminating");
inline const QString KTXLMPrefPaneLaunchAgent = QStringLiteral("Launch Lumaroo Agent");
inline const QString KTXPrefPaneToTab = QStringLiteral("Lumaroo PrefPane Switch to tab");
inline const QString KTXLMAgenCloseCurrentApp = QStringLiteral("Lumaroo Agent Quit Current App");
inline const QString KTXLMAgentDisableAutoLaunch = QStringLiteral("Lumaroo Agent shouldn't auto-launch");
inline const QString KTXChangeColor = QStringLiteral("KTXChangeColor");

/// In the user information of KTXLMAgentLaunched: the agent's bundle version, a number or a text of digits.
inline const QString KTXLMAgentVersion = QStringLiteral("KTXLMAgentVersion");

// Names of alert texts. The alerts themselves look their texts up by the English text.

inline const QString KTXHotKeyTakenMessage = QStringLiteral("hotKeyTakenMessageText");
inline const QString KTXHotKeyTakenInfo = QStringLiteral("hotKeyTakenInformationText");
inline const QString KTXHotKeysTakenMessage = QStringLiteral("hotKeysTakenMessageText");
inline const QString KTXHotKeysTakenInfo = QStringLiteral("hotKeysTakenInformationText");
inline const QString KTXLastModifierMessage = QStringLiteral("deselectLastModifierMessageText");
inline const QString KTXLastModifierInfo = QStringLiteral("deselectLastModifierInformationText");
inline const QString KTXURLUnavailableMessage = QStringLiteral("URLUnavailableMessageText");
inline const QString KTXURLUnavailableInfo = QStringLiteral("URLUnavailableInformationText");

// What the agent calls the parts of a window's description, and its own steps.

inline const QString KTXWindowPID = QStringLiteral("windowPID");
inline const QString KTXWindowRect = QStringLiteral("windowRect");
inline const QString KTXWindowID = QStringLiteral("windowID");
inline const QString KTXWindowName = QStringLiteral("windowName");
inline const QString KTXWindowLevel = QStringLiteral("windowLevel");
inline const QString KTXWindowAlpha = QStringLiteral("windowAlpha");
inline const QString KTXWindowIsIgnored = QStringLiteral("windowIsIgnored");
inline const QString KTXWindowOrder = QStringLiteral("windowOrder");
inline const QString KTXAppName = QStringLiteral("appName");
inline const QString KTXWindowsAbove = QStringLiteral("windowsAbove");
inline const QString KTXWindowsBelow = QStringLiteral("windowsBelow");
inline const QString KTXWindowsToLeft = QStringLiteral("windowsToLeft");
inline const QString KTXWindowsToRight = QStringLiteral("windowsToRight");
inline const QString KTXWindowsUnderneath = QStringLiteral("windowsUnderneath");

inline const QString KTXShowOverlay = QStringLiteral("showOverlay");
inline const QString KTXHideOverlay = QStringLiteral("hideOverlay");
inline const QString KTXHideHUD = QStringLiteral("hideHUD");
inline const QString KTXShowContent = QStringLiteral("showContent");
inline const QString KTXLumarooIsDisabled = QStringLiteral("LumarooIsDisabled");
inline const QString KTXLumarooIsEnabled = QStringLiteral("LumarooIsEnabled");
