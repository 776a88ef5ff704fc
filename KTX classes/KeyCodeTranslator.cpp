#include "KeyCodeTranslator.h"

#include "KTXModifiers.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/keyboard/KeyboardLayout.h"

#include <algorithm>
#include <cstdio>

const std::array<KeyName, 24> keyNameTable{{
    {u"↑", 0x2191, 0xF700},
    {u"↓", 0x2193, 0xF701},
    {u"←", 0x2190, 0xF702},
    {u"→", 0x2192, 0xF703},
    {u"Home", 0, 0xF729},
    {u"End", 0, 0xF72B},
    {u"Page Up", 0, 0xF72C},
    {u"Page Down", 0, 0xF72D},
    {u"↑", 0x2191, 0x001E},
    {u"↓", 0x2193, 0x001F},
    {u"←", 0x2190, 0x001C},
    {u"→", 0x2192, 0x001D},
    {u"Home", 0, 0x0001},
    {u"End", 0, 0x0004},
    {u"Page Up", 0, 0x000B},
    {u"Page Down", 0, 0x000C},
    // The reverse of what these two keys are usually called, and meant so.
    {u"Return", 0, 0x0003},
    {u"Tab", 0, 0x0009},
    {u"Backtab", 0, 0x0019},
    {u"Enter", 0, 0x000D},
    {u"Backspace", 0, 0x0008},
    {u"Delete", 0, 0x007F},
    {u"Escape", 0, 0x001B},
    {u"Space", 0, 0x0020},
}};

namespace {

struct ModifierGlyph
{
    quint32 bit;
    char16_t glyph;
    quint64 eventFlag;
};

constexpr std::array<ModifierGlyph, 4> modifierTable{{
    {KTXShiftModifier, u'⇧', 0x20000},
    {KTXControlModifier, u'⌃', 0x40000},
    {KTXOptionModifier, u'⌥', 0x80000},
    {KTXCommandModifier, u'⌘', 0x100000},
}};

constexpr quint64 longestTranslation = 1;

/// What the current layout gives for a key without modifiers: one UTF-16 unit, or nothing.
QString translation(VirtualKeyCode keyCode)
{
    const UCKeyboardLayoutRef layout =
        TISGetInputSourceProperty(TISCopyCurrentKeyboardLayoutInputSource(), kTISPropertyUnicodeKeyLayoutData);
    quint32 deadKeyState = 0;
    quint64 length = 0;
    char16_t unit = 0;
    UCKeyTranslate(
        layout, keyCode, kUCKeyActionDown, 0, LMGetKbdType(), 0, &deadKeyState, longestTranslation, &length, &unit);
    return QString::fromUtf16(&unit, qsizetype(length));
}

QString textOf(const KeyName &row)
{
    if (row.glyph != 0)
        return QString(QChar(row.glyph));
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(QString::fromUtf16(row.name));
}

} // namespace

QString KeyCodeTranslator::stringForKeyCodeWithModifierFlags(VirtualKeyCode keyCode, quint64)
{
    return nameOfTranslation(translation(keyCode.low16Bits()));
}

QString KeyCodeTranslator::nameOfTranslation(const QString &units)
{
    const auto isNamed = [&units](const KeyName &row) { return units.startsWith(QChar(row.character)); };
    const auto row = std::find_if(keyNameTable.cbegin(), keyNameTable.cend(), isNamed);
    return row != keyNameTable.cend() ? textOf(*row) : units.toUpper();
}

QString modifierGlyphs(quint32 modifierMask)
{
    QString glyphs;
    for (const ModifierGlyph &modifier : modifierTable) {
        if (modifierMask & modifier.bit)
            glyphs += QChar(modifier.glyph);
    }
    return glyphs;
}

quint64 hKeyModsToCGEventParams(quint32 modifierMask)
{
    quint64 flags = 0;
    for (const ModifierGlyph &modifier : modifierTable) {
        if (modifierMask & modifier.bit)
            flags |= modifier.eventFlag;
    }
    return flags;
}

QString binaryString(quint32 value)
{
    QString bits;
    for (quint32 mask = 0x80000000; mask != 0; mask >>= 1)
        bits += value & mask ? u'1' : u'0';
    return bits;
}

void printBits(quint32 value)
{
    std::fputs(qPrintable(binaryString(value)), stdout);
}

QString BOOLString(bool value)
{
    return value ? QStringLiteral("Yes") : QStringLiteral("No");
}
