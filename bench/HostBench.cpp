// From the start of the settings application with the pane until its first page is drawn, and its resident memory then,
// against a window of the same toolkit with one line of text in the same run. Needs a session bus, a display with a
// window manager, and the build folder as argument.

#include "bench/FirstWindow.h"

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: HostBench BUILD-FOLDER\n");
        return 2;
    }
    const QString build = QFile::decodeName(arguments[1]);
    const QString host = build + QStringLiteral("/Settings.app/Contents/Linux/lumaroo-settings");
    const auto compared = firstwindow::compare(
        build, host, {QStringLiteral("--theme"), QStringLiteral("dark"), QStringLiteral("com.quorvane.Lumaroo")});
    if (!compared) {
        std::fprintf(stderr, "HostBench: no window was drawn\n");
        return 1;
    }
    firstwindow::print("host with the pane until its first page is drawn", "ms", median(compared->figures.milliseconds),
        median(compared->floors.milliseconds), 2.0);
    firstwindow::print(
        "resident memory then", "MiB", median(compared->figures.mebibytes), median(compared->floors.mebibytes), 1.8);
    return 0;
}
