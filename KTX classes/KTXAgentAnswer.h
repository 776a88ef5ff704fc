#pragma once

#include <QString>

// What the agent answers on the session bus to those who ask it for its settings: the texts that both sides agree on.

inline const QString KTXLMAgentPath = QStringLiteral("/com/quorvane/LumarooAgent");
inline const QString KTXAskSettings = QStringLiteral("Settings");
/// The signal that says that the answer may be another one now.
inline const QString KTXHotKeysChanged = QStringLiteral("HotKeysChanged");
/// The signal of a press, with the name under which the action's key is stored.
inline const QString KTXActionKeyPressed = QStringLiteral("ActionKeyPressed");

// The answer's entries, and those of each of its hot keys.

inline const QString KTXAnswerSettings = QStringLiteral("settings");
inline const QString KTXAnswerHotKeys = QStringLiteral("hotKeys");
inline const QString KTXAnswerFreeModifiers = QStringLiteral("freeModifiers");
inline const QString KTXAnswerAction = QStringLiteral("action");
inline const QString KTXAnswerKeyCode = QStringLiteral("keyCode");
inline const QString KTXAnswerRegistered = QStringLiteral("registered");
inline const QString KTXAnswerCause = QStringLiteral("cause");

// Why a hot key is not registered.

inline const QString KTXCauseNoModifiers = QStringLiteral("noModifiers");
inline const QString KTXCauseDoublePressAlone = QStringLiteral("doublePressAlone");
inline const QString KTXCauseOtherAction = QStringLiteral("otherAction");
inline const QString KTXCauseTyping = QStringLiteral("typing");
inline const QString KTXCauseOtherProgram = QStringLiteral("otherProgram");
inline const QString KTXCauseNoKey = QStringLiteral("noKey");
inline const QString KTXCauseNoHotKeys = QStringLiteral("noHotKeys");
inline const QString KTXCauseGivenUp = QStringLiteral("givenUp");
