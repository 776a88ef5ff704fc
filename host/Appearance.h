#pragma once

#include "host/ColorScheme.h"

#include <QObject>
#include <optional>

class DesktopColorScheme;

/// The application's style and palette.
///
/// Where the desktop brings a Qt theme of its own it is left as it is. Elsewhere the style is Fusion with clear
/// outlines, in the desktop's colour scheme, which is followed. A fixed scheme counts everywhere and follows nothing.
class Appearance : public QObject
{
    Q_OBJECT

public:
    explicit Appearance(std::optional<ColorScheme> fixed);

private:
    void apply(ColorScheme scheme);

    DesktopColorScheme *desktop_ = nullptr;
};

/// Whether a platform theme or the environment has set style or palette. Meaningful before anything else sets them.
bool desktopBringsItsOwnTheme();
