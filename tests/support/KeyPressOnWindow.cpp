#include "KeyPress.h"

#include <QWidget>

// Apart, since programs without windows press keys, too.

bool hasKeyboard(const QWidget *window)
{
    return window->isActiveWindow() && windowWithKeyboard() == window->winId();
}
