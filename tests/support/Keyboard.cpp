#include "Keyboard.h"

#include "platform/foundation/keyboard/KeyboardLayout.h"
#include "platform/foundation/system/X11.h"

#include <QProcess>
#include <memory>
#include <xkbcommon/xkbcommon-x11.h>

void setKeyboardLayout(const QString &layouts, const QString &variants, const QStringList &options)
{
    QStringList arguments{"-layout", layouts, "-variant", variants, "-option", ""};
    for (const QString &option : options)
        arguments += QStringList{"-option", option};
    if (QProcess::execute("setxkbmap", arguments) != 0)
        qFatal("setxkbmap does not take %s", qPrintable(layouts));
}

namespace {

XConnection connectionToKeyboard()
{
    XConnection connection = connectToXServer();
    const auto use = xcb_xkb_use_extension(connection.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    fromServer(xcb_xkb_use_extension_reply(connection.get(), use, nullptr));
    return connection;
}

void lockGroup(const XConnection &connection, int group)
{
    const auto lock =
        xcb_xkb_latch_lock_state_checked(connection.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, quint8(group), 0, 0, 0);
    if (fromServer(xcb_request_check(connection.get(), lock)))
        qFatal("the server refuses group %d", group);
}

} // namespace

void lockKeyboardGroup(int group)
{
    lockGroup(connectionToKeyboard(), group);
}

void switchKeyboardGroups(int times)
{
    const XConnection connection = connectionToKeyboard();
    for (int turn = 1; turn <= times; ++turn)
        lockGroup(connection, turn % 2);
}

std::optional<int> keycodeNamed(const QString &xkbName)
{
    const XConnection connection = connectionToKeyboard();
    const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
        xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref);
    const std::unique_ptr<xkb_keymap, decltype(&xkb_keymap_unref)> keymap(
        xkb_x11_keymap_new_from_device(context.get(), connection.get(),
            xkb_x11_get_core_keyboard_device_id(connection.get()), XKB_KEYMAP_COMPILE_NO_FLAGS),
        &xkb_keymap_unref);
    const xkb_keycode_t keycode = xkb_keymap_key_by_name(keymap.get(), xkbName.toLatin1().constData());
    return keycode == XKB_KEYCODE_INVALID ? std::nullopt : std::optional(int(keycode));
}

QString translatedKey(VirtualKeyCode keyCode)
{
    const UCKeyboardLayoutRef layout =
        TISGetInputSourceProperty(TISCopyCurrentKeyboardLayoutInputSource(), kTISPropertyUnicodeKeyLayoutData);
    quint32 deadKeyState = 0;
    quint64 length = 0;
    char16_t units[4]{};
    if (UCKeyTranslate(layout, keyCode, kUCKeyActionDown, 0, LMGetKbdType(), 0, &deadKeyState, 4, &length, units) != 0)
        return QStringLiteral("error");
    return QString::fromUtf16(units, qsizetype(length));
}
