#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <algorithm>
#include <array>

namespace {

struct Alias
{
    quint16 evdev;
    VirtualKeyCode code;
    const char *xkbName; ///< empty for what no keyboard of the X server has
};

// Keys of this desktop that stand where a code's own key is missing.
constexpr std::array aliases{
    Alias{355, 71, ""},
    Alias{95, 95, "JPCM"},
    Alias{99, 105, "PRSC"},
    Alias{210, 105, "I218"},
    Alias{70, 107, "SCLK"},
    Alias{119, 113, "PAUS"},
    Alias{138, 114, "HELP"},
};

constexpr VirtualKey keys[]{
    {0, 30, "AC01", 0x0061, true},
    {1, 31, "AC02", 0x0073, true},
    {2, 32, "AC03", 0x0064, true},
    {3, 33, "AC04", 0x0066, true},
    {4, 35, "AC06", 0x0068, true},
    {5, 34, "AC05", 0x0067, true},
    {6, 44, "AB01", 0x007A, true},
    {7, 45, "AB02", 0x0078, true},
    {8, 46, "AB03", 0x0063, true},
    {9, 47, "AB04", 0x0076, true},
    {10, 86, "LSGT", 0x003C, true},
    {11, 48, "AB05", 0x0062, true},
    {12, 16, "AD01", 0x0071, true},
    {13, 17, "AD02", 0x0077, true},
    {14, 18, "AD03", 0x0065, true},
    {15, 19, "AD04", 0x0072, true},
    {16, 21, "AD06", 0x0079, true},
    {17, 20, "AD05", 0x0074, true},
    {18, 2, "AE01", 0x0031, true},
    {19, 3, "AE02", 0x0032, true},
    {20, 4, "AE03", 0x0033, true},
    {21, 5, "AE04", 0x0034, true},
    {22, 7, "AE06", 0x0036, true},
    {23, 6, "AE05", 0x0035, true},
    {24, 13, "AE12", 0x003D, true},
    {25, 10, "AE09", 0x0039, true},
    {26, 8, "AE07", 0x0037, true},
    {27, 12, "AE11", 0x002D, true},
    {28, 9, "AE08", 0x0038, true},
    {29, 11, "AE10", 0x0030, true},
    {30, 27, "AD12", 0x005D, true},
    {31, 24, "AD09", 0x006F, true},
    {32, 22, "AD07", 0x0075, true},
    {33, 26, "AD11", 0x005B, true},
    {34, 23, "AD08", 0x0069, true},
    {35, 25, "AD10", 0x0070, true},
    {36, 28, "RTRN", 0x000D, true},
    {37, 38, "AC09", 0x006C, true},
    {38, 36, "AC07", 0x006A, true},
    {39, 40, "AC11", 0x0027, true},
    {40, 37, "AC08", 0x006B, true},
    {41, 39, "AC10", 0x003B, true},
    {42, 43, "BKSL", 0x005C, true},
    {43, 51, "AB08", 0x002C, true},
    {44, 53, "AB10", 0x002F, true},
    {45, 49, "AB06", 0x006E, true},
    {46, 50, "AB07", 0x006D, true},
    {47, 52, "AB09", 0x002E, true},
    {48, 15, "TAB", 0x0009, true},
    {49, 57, "SPCE", 0x0020, true},
    {50, 41, "TLDE", 0x0060, true},
    {51, 14, "BKSP", 0x0008, true},
    {52, 96, "KPEN", 0x0003, false},
    {53, 1, "ESC", 0x001B, true},
    {54, 126, "RWIN", 0, true},
    {55, 125, "LWIN", 0, true},
    {56, 42, "LFSH", 0, true},
    {57, 58, "CAPS", 0, true},
    {58, 56, "LALT", 0, true},
    {59, 29, "LCTL", 0, true},
    {60, 54, "RTSH", 0, true},
    {61, 100, "RALT", 0, true},
    {62, 97, "RCTL", 0, true},
    {63, 464, "I472", 0, true},
    {64, 187, "FK17", 0x0010, true},
    {65, 83, "KPDL", 0x002E, true},
    {66, 0, "", 0x001D, false},
    {67, 55, "KPMU", 0x002A, true},
    {69, 78, "KPAD", 0x002B, true},
    {70, 0, "", 0x001C, false},
    {71, 69, "NMLK", 0x001B, true},
    {72, 115, "VOL+", 0x001F, true},
    {73, 114, "VOL-", 0, true},
    {74, 113, "MUTE", 0, true},
    {75, 98, "KPDV", 0x002F, true},
    {76, 96, "KPEN", 0x0003, true},
    {77, 0, "", 0x001E, false},
    {78, 74, "KPSU", 0x002D, true},
    {79, 188, "FK18", 0x0010, true},
    {80, 189, "FK19", 0x0010, true},
    {81, 117, "KPEQ", 0x003D, true},
    {82, 82, "KP0", 0x0030, true},
    {83, 79, "KP1", 0x0031, true},
    {84, 80, "KP2", 0x0032, true},
    {85, 81, "KP3", 0x0033, true},
    {86, 75, "KP4", 0x0034, true},
    {87, 76, "KP5", 0x0035, true},
    {88, 77, "KP6", 0x0036, true},
    {89, 71, "KP7", 0x0037, true},
    {90, 190, "FK20", 0, true},
    {91, 72, "KP8", 0x0038, true},
    {92, 73, "KP9", 0x0039, true},
    {93, 124, "AE13", 0, true},
    {94, 89, "AB11", 0, true},
    {95, 121, "I129", 0, true},
    {96, 63, "FK05", 0x0010, true},
    {97, 64, "FK06", 0x0010, true},
    {98, 65, "FK07", 0x0010, true},
    {99, 61, "FK03", 0x0010, true},
    {100, 66, "FK08", 0x0010, true},
    {101, 67, "FK09", 0x0010, true},
    {102, 123, "HJCV", 0x0010, true},
    {103, 87, "FK11", 0x0010, true},
    {104, 122, "HNGL", 0x0010, true},
    {105, 183, "FK13", 0x0010, true},
    {106, 186, "FK16", 0x0010, true},
    {107, 184, "FK14", 0x0010, true},
    {108, 0, "", 0x0010, true},
    {109, 68, "FK10", 0x0010, true},
    {110, 127, "COMP", 0x0010, true},
    {111, 88, "FK12", 0x0010, true},
    {112, 0, "", 0x0010, true},
    {113, 185, "FK15", 0x0010, true},
    {114, 110, "INS", 0x0005, true},
    {115, 102, "HOME", 0x0001, true},
    {116, 104, "PGUP", 0x000B, true},
    {117, 111, "DELE", 0x007F, true},
    {118, 62, "FK04", 0x0010, true},
    {119, 107, "END", 0x0004, true},
    {120, 60, "FK02", 0x0010, true},
    {121, 109, "PGDN", 0x000C, true},
    {122, 59, "FK01", 0x0010, true},
    {123, 105, "LEFT", 0x001C, true},
    {124, 106, "RGHT", 0x001D, true},
    {125, 108, "DOWN", 0x001F, true},
    {126, 103, "UP", 0x001E, true},
    {127, 116, "POWR", 0, true},
};

} // namespace

std::span<const VirtualKey> virtualKeys()
{
    return keys;
}

const VirtualKey *virtualKey(VirtualKeyCode code)
{
    const auto hasLowerCode = [](const VirtualKey &key, VirtualKeyCode wanted) { return key.code < wanted; };
    const VirtualKey *found = std::lower_bound(std::begin(keys), std::end(keys), code, hasLowerCode);
    return found != std::end(keys) && found->code == code ? found : nullptr;
}

std::optional<VirtualKeyCode> virtualKeyCodeForEvdev(quint32 evdev)
{
    for (const VirtualKey &key : keys) {
        if (key.evdev != 0 && key.evdev == evdev && key.recordable)
            return key.code;
    }
    for (const Alias &alias : aliases) {
        if (alias.evdev == evdev)
            return alias.code;
    }
    return std::nullopt;
}

VirtualKeyCode pressedKeyCode(VirtualKeyCode code)
{
    constexpr VirtualKeyCode otherEnter = 52, enter = 76;
    return code == otherEnter ? enter : code;
}

QList<PhysicalKey> physicalKeysOf(VirtualKeyCode code)
{
    const VirtualKeyCode pressed = pressedKeyCode(code);
    QList<PhysicalKey> found;
    const VirtualKey *key = virtualKey(pressed);
    if (key && key->evdev != 0)
        found.append({key->evdev, key->xkbName});
    for (const Alias &alias : aliases) {
        if (alias.code == pressed)
            found.append({alias.evdev, alias.xkbName});
    }
    return found;
}
