#include "host/Appearance.h"

#include "host/OutlineStyle.h"
#include "host/Palettes.h"
#include "host/linux/DesktopColorScheme.h"

#include <QApplication>
#include <QStyle>

bool desktopBringsItsOwnTheme()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORMTHEME") || !qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE"))
        return true;
    if (QApplication::style()->name().compare(QStringLiteral("fusion"), Qt::CaseInsensitive) != 0)
        return true;
    // Without a theme the application starts with the style's own colours.
    const QPalette now = QApplication::palette();
    const QPalette plain = QApplication::style()->standardPalette();
    return now.color(QPalette::Window) != plain.color(QPalette::Window)
        || now.color(QPalette::WindowText) != plain.color(QPalette::WindowText)
        || now.color(QPalette::Highlight) != plain.color(QPalette::Highlight);
}

Appearance::Appearance(std::optional<ColorScheme> fixed)
{
    if (!fixed && desktopBringsItsOwnTheme())
        return;
    apply(fixed.value_or(ColorScheme::Light));
    if (fixed)
        return;
    desktop_ = new DesktopColorScheme(this);
    connect(desktop_, &DesktopColorScheme::changed, this, &Appearance::apply);
}

void Appearance::apply(ColorScheme scheme)
{
    if (!qobject_cast<OutlineStyle *>(QApplication::style()))
        QApplication::setStyle(new OutlineStyle);
    QApplication::setPalette(paletteFor(scheme));
}
