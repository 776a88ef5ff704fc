#pragma once

#include <QString>
#include <QTextBrowser>
#include <QWidget>

// The help viewer on screen, as its user sees it.

/// Its window, or null while it is closed.
QWidget *openHelp();
/// Waits until it has the keyboard.
bool helpComesUp();
/// Closes it, as the window manager would.
void closeHelp();
/// A part of it: "helpPage", "helpContents", "helpResults", "helpSearch", "helpBack" ...
template <typename Part = QWidget>
Part *partOfHelp(const char *name)
{
    return openHelp() ? openHelp()->findChild<Part *>(QLatin1StringView(name)) : nullptr;
}
inline QTextBrowser *helpPage()
{
    return partOfHelp<QTextBrowser>("helpPage");
}
/// The page that it shows: file name and anchor, such as "keys.html#activate"; empty when it is closed or shows none.
QString helpPlace();
/// Waits until it has the keyboard and shows a place.
bool helpShows(const QString &place);
