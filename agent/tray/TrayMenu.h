#pragma once

#include <QList>
#include <QString>
#include <optional>

/// What the icon and its menu tell.
struct TrayView
{
    bool isOn = true;
    QString hint; ///< what to press, on one line; may be empty

    bool operator==(const TrayView &) const = default;
};

enum class TrayChoice : quint8 { OnOff, Settings, Tutorial, Quit };

/// One line of the menu.
struct TrayMenuItem
{
    int id; ///< always the same; 0 is the menu itself
    QString label; ///< none for a line between others
    std::optional<TrayChoice> choice;
    std::optional<bool> isChecked; ///< nothing where it has no mark
};

/// In the user's language, from top to bottom.
QList<TrayMenuItem> trayMenu(const TrayView &view);
/// Nothing for what is no line to choose.
std::optional<TrayChoice> trayChoice(int id);

/// The line below the name in the icon's tooltip.
QString trayToolTip(const TrayView &view);
