#pragma once

#include <QList>
#include <QVariantMap>

/// What a setting takes; a stored value that is nothing of the kind counts as absent.
enum class SettingType {
    Anything,
    Boolean,
    ModifierMask, ///< an integer of 32 bits, of which only the bits of a modifier key are kept
    Float, ///< any finite number, as a 32-bit one
    Text,
    Data,
    HotKey, ///< a dictionary with a key code
};

/// A key of the settings domain as the agent goes by it. A default without a value means that there is none.
struct AgentSetting
{
    QString key;
    SettingType type;
    QVariant defaultValue;
};

/// Every key of the domain, in the order in which the settings are described.
const QList<AgentSetting> &agentSettings();

/// Each key with the value to go by: what is stored, or its default where that is absent or of another type; no value
/// where there is no default either. Keys that the agent does not know are left out.
QVariantMap effectiveSettings(const QVariantMap &stored);
