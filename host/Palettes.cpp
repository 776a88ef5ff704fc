#include "host/Palettes.h"

#include "platform/foundation/colors/AccentColor.h"

namespace {

struct RoleColor
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr RoleColor roleColors[] = {
    {QPalette::Window, 0xfff4f4f6, 0xff232528},
    {QPalette::WindowText, 0xff1d1e20, 0xffe8e9eb},
    {QPalette::Base, 0xffffffff, 0xff2b2d31},
    {QPalette::AlternateBase, 0xfff0f1f3, 0xff303338},
    {QPalette::Text, 0xff1d1e20, 0xffe8e9eb},
    {QPalette::PlaceholderText, 0xff64686e, 0xffa3a8af},
    {QPalette::Button, 0xffe9eaed, 0xff36393e},
    {QPalette::ButtonText, 0xff1d1e20, 0xffe8e9eb},
    {QPalette::BrightText, 0xffb3261e, 0xffffb4ab},
    {QPalette::ToolTipBase, 0xff2b2d31, 0xff44474d},
    {QPalette::ToolTipText, 0xfff4f4f6, 0xfff4f4f6},
    {QPalette::Highlight, 0xff000000 | accentColor, 0xff3a74c8},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link, 0xff1f5cb0, 0xff8ab4f8},
    {QPalette::LinkVisited, 0xff6b4ba1, 0xffc3a6f0},
    {QPalette::Light, 0xffffffff, 0xff4a4e54},
    {QPalette::Midlight, 0xfff4f4f6, 0xff3f4348},
    {QPalette::Mid, 0xffb9bcc2, 0xff1d1f22},
    {QPalette::Dark, 0xff9a9ea5, 0xff191b1d},
    {QPalette::Shadow, 0xff6f7379, 0xff0e0f10},
};

constexpr RoleColor disabledColors[] = {
    {QPalette::WindowText, 0xff8b8f95, 0xff7d8188},
    {QPalette::Text, 0xff8b8f95, 0xff7d8188},
    {QPalette::ButtonText, 0xff8b8f95, 0xff7d8188},
    {QPalette::Highlight, 0xffb9bcc2, 0xff4a4e54},
};

QColor colorOf(const RoleColor &entry, ColorScheme scheme)
{
    return QColor(scheme == ColorScheme::Dark ? entry.dark : entry.light);
}

} // namespace

QPalette paletteFor(ColorScheme scheme)
{
    QPalette palette;
    for (const RoleColor &entry : roleColors)
        palette.setColor(entry.role, colorOf(entry, scheme));
    for (const RoleColor &entry : disabledColors)
        palette.setColor(QPalette::Disabled, entry.role, colorOf(entry, scheme));
    return palette;
}
