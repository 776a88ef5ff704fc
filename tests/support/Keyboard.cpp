#include "Keyboard.h"

#include "platform/foundation/keyboard/KeyboardLayout.h"
#include "platform/foundation/system/X11.h"

#include <QProcess>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

void setKeyboardLayout(const QString &layouts, const QString &variants, const QStringList &options)
{
    QStringList arguments{"-layout", layouts, "-variant", variants, "-option", ""};
    for (const QString &option : options)
        arguments += QStringList{"-option", option};
    if (QProcess::execute("setxkbmap", arguments) != 0)
        qFatal("setxkbmap does not take %s", qPrintable(layouts));
}

void lockKeyboardGroup(int group)
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    const auto use = xcb_xkb_use_extension(connection.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    std::free(xcb_xkb_use_extension_reply(connection.get(), use, nullptr));
    const auto lock =
        xcb_xkb_latch_lock_state_checked(connection.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, quint8(group), 0, 0, 0);
    if (xcb_request_check(connection.get(), lock))
        qFatal("the server refuses group %d", group);
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
