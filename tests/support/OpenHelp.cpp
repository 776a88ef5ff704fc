#include "OpenHelp.h"

#include "KeyPress.h"
#include "Wait.h"

#include <QApplication>

QWidget *openHelp()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QStringLiteral("helpWindow") && window->isVisible())
            return window;
    }
    return nullptr;
}

bool helpComesUp()
{
    return waitUntil([] { return openHelp() && hasKeyboard(openHelp()); });
}

void closeHelp()
{
    if (QWidget *window = openHelp())
        window->close();
}

QString helpPlace()
{
    const QUrl address = helpPage() ? helpPage()->source() : QUrl();
    const QString anchor = address.fragment();
    return address.fileName() + (anchor.isEmpty() ? QString() : u'#' + anchor);
}

bool helpShows(const QString &place)
{
    return helpComesUp() && waitUntil([&place] { return helpPlace() == place; });
}
