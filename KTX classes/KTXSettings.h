#pragma once

#include <QList>
#include <QString>
#include <QVariant>

// Every key of the settings domain, once. The window shows and the agent goes by the same for whatever is stored.

/// How a stored value counts.
enum class KTXSettingType {
    Presence, ///< any value; only that there is one counts
    Boolean, ///< a boolean; anything else counts as absent
    Truth, ///< whatever is stored, as boolValue has it
    ModifierMask, ///< a number within 32 bits, of which only the bits of modifier keys are kept; else absent
    Number, ///< whatever is stored, as floatValue has it, within the bounds
    SortOrder, ///< a text that an item of the key's pop-up stores; else absent
    Color, ///< the archive of a colour; else absent
    HotKey, ///< a dictionary with a key code; else absent
    Texts, ///< a list of texts and nothing else; else absent
};

/// A key with the value that goes where nothing is stored; no value means that there is none to go by.
struct KTXSetting
{
    QString key;
    KTXSettingType type;
    QVariant defaultValue;
    float least = 0; ///< of a number: its slider's bounds
    float most = 0;
};

/// All of them, in the order in which people are shown them.
const QList<KTXSetting> &KTXSettings();

/// The default of a key; no value for a key that is none of them.
QVariant KTXDefaultValue(const QString &key);
