// A message to the makers from a machine that says nothing of itself. The name of one that does is kept for the life of
// a process, so this is one of its own.

#include "ReportWindow.h"

TEST_F(ReportWindow, saysThatTheMachineHasNoName)
{
    const QTemporaryDir empty;
    qputenv("LUMAROO_SYSTEM_ROOT", QFile::encodeName(empty.path()));
    const bool isOpen = openFeedback() != nullptr;
    qunsetenv("LUMAROO_SYSTEM_ROOT");
    ASSERT_TRUE(isOpen);
    EXPECT_TRUE(text("crashLogField").startsWith("Application: Lumaroo 77\nModel: (null)\nCPU Speed: 0.00 GHz\n"))
        << text("crashLogField").toStdString();
}
