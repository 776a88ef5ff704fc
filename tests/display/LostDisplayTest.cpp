#include "CapturedLog.h"
#include "Keyboard.h"
#include "Wait.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace {

/// An X server that can be ended: the session's own carries the test's windows.
class SecondDisplay
{
public:
    SecondDisplay()
    {
        server_.start("Xvfb", {"-noreset", "-nolisten", "tcp", "-displayfd", "1"});
        if (!waitUntil([this] { return server_.canReadLine(); }))
            qFatal("no second X server");
        name_ = ':' + server_.readLine().trimmed();
    }
    ~SecondDisplay() { end(); }

    QByteArray name() const { return name_; }
    void end()
    {
        server_.kill();
        server_.waitForFinished();
    }

private:
    QProcess server_;
    QByteArray name_;
};

} // namespace

TEST(LostDisplay, keysAreNamedByTheDefaultLayoutFromThenOn)
{
    CapturedLog log;
    SecondDisplay display;
    qputenv("DISPLAY", display.name());
    setKeyboardLayout("de");
    ASSERT_TRUE(waitUntil([] { return translatedKey(6) == "y"; }));

    display.end();
    EXPECT_TRUE(waitUntil([] { return translatedKey(6) == "z"; }));
    EXPECT_EQ(translatedKey(126), QString(QChar(0x1E)));
    EXPECT_EQ(log.linesContaining("keyboard layout").size(), 1);
}
