#include "platform/appkit/textfields/internal/KeyBindings.h"

#include "platform/foundation/keyboard/KeyboardLayout.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace {

struct KeyRange
{
    VirtualKeyCode first;
    VirtualKeyCode last;
};

constexpr std::array typingKeys{
    KeyRange{0, 35},
    KeyRange{37, 47},
    KeyRange{49, 50},
    KeyRange{65, 65},
    KeyRange{67, 67},
    KeyRange{69, 69},
    KeyRange{75, 75},
    KeyRange{78, 78},
    KeyRange{81, 89},
    KeyRange{91, 95},
};

constexpr std::array keysOfNoUse{
    KeyRange{51, 51},
    KeyRange{53, 53},
    KeyRange{64, 64},
    KeyRange{79, 80},
    KeyRange{90, 90},
    KeyRange{96, 111},
    KeyRange{113, 122},
};

struct KeyBinding
{
    VirtualKeyCode keyCode;
    const char16_t *selector;
    const char16_t *selectorWithShift;
};

constexpr std::array bindings{
    KeyBinding{36, u"insertNewline:", u"insertNewline:"},
    KeyBinding{48, u"insertTab:", u"insertBacktab:"},
    KeyBinding{51, u"deleteBackward:", u"deleteBackward:"},
    KeyBinding{53, u"cancelOperation:", u"cancelOperation:"},
    KeyBinding{76, u"insertNewline:", u"insertNewline:"},
    KeyBinding{115, u"scrollToBeginningOfDocument:", u"moveToBeginningOfDocumentAndModifySelection:"},
    KeyBinding{116, u"scrollPageUp:", u"pageUpAndModifySelection:"},
    KeyBinding{117, u"deleteForward:", u"deleteForward:"},
    KeyBinding{119, u"scrollToEndOfDocument:", u"moveToEndOfDocumentAndModifySelection:"},
    KeyBinding{121, u"scrollPageDown:", u"pageDownAndModifySelection:"},
    KeyBinding{123, u"moveLeft:", u"moveLeftAndModifySelection:"},
    KeyBinding{124, u"moveRight:", u"moveRightAndModifySelection:"},
    KeyBinding{125, u"moveDown:", u"moveDownAndModifySelection:"},
    KeyBinding{126, u"moveUp:", u"moveUpAndModifySelection:"},
};

constexpr VirtualKeyCode returnKey = 36;
constexpr std::array<VirtualKeyCode, 5> enterAndArrows{76, 123, 124, 125, 126};

template <typename Ranges>
bool isIn(const Ranges &ranges, VirtualKeyCode keyCode)
{
    return std::any_of(ranges.begin(), ranges.end(),
        [keyCode](const KeyRange &range) { return range.first <= keyCode && keyCode <= range.last; });
}

quint32 flagsOf(Qt::KeyboardModifiers modifiers)
{
    quint32 flags = 0;
    flags |= modifiers & Qt::ShiftModifier ? quint32(NSShiftKeyMask) : 0;
    flags |= modifiers & Qt::ControlModifier ? quint32(NSControlKeyMask) : 0;
    flags |= modifiers & Qt::AltModifier ? quint32(NSAlternateKeyMask) : 0;
    flags |= modifiers & Qt::MetaModifier ? quint32(NSCommandKeyMask) : 0;
    return flags;
}

} // namespace

std::optional<NSEvent> keyDownEvent(const QKeyEvent &event)
{
    const UCKeyboardLayoutRef layout =
        TISGetInputSourceProperty(TISCopyCurrentKeyboardLayoutInputSource(), kTISPropertyUnicodeKeyLayoutData);
    const std::optional<VirtualKeyCode> keyCode = LMVirtualKeyCodeOfKeycode(layout, event.nativeScanCode());
    if (!keyCode)
        return std::nullopt;
    return NSEvent{NSEventType::KeyDown, *keyCode, flagsOf(event.modifiers())};
}

bool isTypingKey(VirtualKeyCode keyCode)
{
    return isIn(typingKeys, keyCode);
}

bool isOfNoUse(VirtualKeyCode keyCode)
{
    return isIn(keysOfNoUse, keyCode);
}

bool countsOnceWhileHeld(VirtualKeyCode keyCode)
{
    const bool isEnterOrArrow =
        std::find(enterAndArrows.begin(), enterAndArrows.end(), keyCode) != enterAndArrows.end();
    return isEnterOrArrow || isTypingKey(keyCode);
}

bool isTakenByFields(VirtualKeyCode keyCode)
{
    return keyCode == returnKey || countsOnceWhileHeld(keyCode);
}

QString commandSelector(const NSEvent &event)
{
    const auto isIts = [&event](const KeyBinding &binding) { return binding.keyCode == event.keyCode; };
    const auto binding = std::find_if(bindings.begin(), bindings.end(), isIts);
    if (binding == bindings.end())
        return {};
    return QString::fromUtf16(event.modifierFlags & NSShiftKeyMask ? binding->selectorWithShift : binding->selector);
}
