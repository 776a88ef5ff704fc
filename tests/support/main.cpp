// Every test program's main: one application object, then all tests.

#include <QApplication>
#include <QStyleHints>
#include <gtest/gtest.h>

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    // A click of one test and the next one's at the same place are two clicks, however fast they follow.
    QApplication::styleHints()->setMouseDoubleClickInterval(0);
    return RUN_ALL_TESTS();
}
