// From the start of the tutorial until its guide is drawn, and its resident memory then, against a window of the same
// toolkit with one line of text in the same run. No agent runs. Needs a session bus, a display with a window manager,
// and the build folder as argument.

#include "bench/FirstWindow.h"

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: TutorialBench BUILD-FOLDER\n");
        return 2;
    }
    const QString build = QFile::decodeName(arguments[1]);
    const QString tutorial = build
        + QStringLiteral("/Lumaroo.prefPane/Contents/Resources/LumarooTutorial.app/Contents/Linux/LumarooTutorial");
    const auto compared = firstwindow::compare(build, tutorial, {QStringLiteral("--theme"), QStringLiteral("dark")});
    if (!compared) {
        std::fprintf(stderr, "TutorialBench: no window was drawn\n");
        return 1;
    }
    firstwindow::print("tutorial until its guide is drawn", "ms", median(compared->figures.milliseconds),
        median(compared->floors.milliseconds), 3.0);
    firstwindow::print(
        "resident memory then", "MiB", median(compared->figures.mebibytes), median(compared->floors.mebibytes), 3.0);
    return 0;
}
