#include "platform/foundation/keyboard/KeyboardLayout.h"
#include "KeyCodeTranslator.h"
#include "KeyCodes.h"
#include "KeyPress.h"
#include "Keyboard.h"
#include "Wait.h"

#include <QDir>
#include <gtest/gtest.h>
#include <sys/ioctl.h>

namespace {

QString nameOf(quint16 keyCode)
{
    return KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keyCode, 0);
}

struct Key
{
    quint16 code;
    const char *name;
};

/// Waits until the keys have these names: the server tells of a new layout when it comes to it.
void expectNames(const std::vector<Key> &keys)
{
    for (const Key &key : keys) {
        EXPECT_TRUE(waitUntil([&key] { return nameOf(key.code) == key.name; }))
            << key.code << " is " << nameOf(key.code).toStdString() << ", not " << key.name;
    }
}

/// What this process has been sent and has not read, in bytes.
qint64 unreadBytes()
{
    qint64 sum = 0;
    for (const QString &name : QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System)) {
        const QString target = QFile::symLinkTarget(QStringLiteral("/proc/self/fd/") + name);
        int bytes = 0;
        if (target.contains(QStringLiteral("socket:")) && ioctl(name.toInt(), FIONREAD, &bytes) == 0)
            sum += bytes;
    }
    return sum;
}

/// The X server's memory, in KiB.
qint64 memoryOfTheServer()
{
    for (const QString &process : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs)) {
        QFile status(QStringLiteral("/proc/%1/status").arg(process));
        const QByteArray text = status.open(QIODevice::ReadOnly) ? status.readAll() : QByteArray();
        if (text.startsWith("Name:\tXvfb\n"))
            return text.mid(text.indexOf("VmRSS:") + 6).simplified().split(' ').first().toLongLong();
    }
    return 0;
}

/// On the real X server, whose layout is left as it was.
class KeyboardLayout : public testing::Test
{
protected:
    void TearDown() override
    {
        setKeyboardLayout("us");
        expectNames({{0, "A"}, {6, "Z"}, {39, "'"}, {65, "."}, {10, "<"}});
    }
};

} // namespace

TEST_F(KeyboardLayout, usGivesWhatTheTableSays)
{
    setKeyboardLayout("us");
    expectNames({{0, "A"}, {6, "Z"}, {44, "/"}, {43, ","}, {50, "`"}});
    for (const KeyCodeRow &row : keyCodeRows())
        EXPECT_EQ(translatedKey(row.code), row.usCharacter) << row.code;
}

TEST_F(KeyboardLayout, germanSwapsYAndZAndHasUmlauts)
{
    setKeyboardLayout("de");
    expectNames({{6, "Y"}, {16, "Z"}, {33, "Ü"}, {41, "Ö"}, {39, "Ä"}, {27, "SS"}, {44, "-"}, {10, "<"}});
    EXPECT_EQ(translatedKey(27), "ß");
}

TEST_F(KeyboardLayout, germanDeadKeysAreNamedByNothing)
{
    setKeyboardLayout("de");
    expectNames({{50, ""}, {24, ""}, {30, "+"}});
}

TEST_F(KeyboardLayout, frenchLettersStandElsewhere)
{
    setKeyboardLayout("fr");
    expectNames({{0, "Q"}, {12, "A"}, {13, "Z"}, {6, "W"}, {41, "M"}, {18, "&"}, {19, "É"}, {33, ""}, {44, "!"}});
}

TEST_F(KeyboardLayout, russianLettersAreUpperCaseToo)
{
    setKeyboardLayout("ru");
    expectNames({{0, "Ф"}, {6, "Я"}, {50, "Ё"}, {1, "Ы"}});
    EXPECT_EQ(translatedKey(0), "ф");
}

TEST_F(KeyboardLayout, ofDeadKeysNamesTheLivingOnes)
{
    setKeyboardLayout("us", "intl");
    expectNames({{39, ""}, {50, ""}, {0, "A"}, {41, ";"}});
}

TEST_F(KeyboardLayout, theKeypadsDecimalSignIsTheLayouts)
{
    setKeyboardLayout("de");
    expectNames({{65, ","}});
    setKeyboardLayout("ru");
    expectNames({{65, ","}});
    setKeyboardLayout("us");
    expectNames({{65, "."}});
}

TEST_F(KeyboardLayout, specialKeysAreTheSameEverywhere)
{
    for (const QString &layout : {QString("de"), QString("fr"), QString("ru")}) {
        setKeyboardLayout(layout);
        expectNames(
            {{126, "↑"}, {49, "Space"}, {53, "Escape"}, {36, "Enter"}, {76, "Return"}, {115, "Home"}, {82, "0"}});
        for (const KeyCodeRow &row : keyCodeRows()) {
            if (row.code > 50 && row.code != 65 && row.code != 93 && row.code != 94) {
                EXPECT_EQ(translatedKey(row.code), row.usCharacter) << layout.toStdString() << ' ' << row.code;
            }
        }
    }
}

TEST_F(KeyboardLayout, switchedToAnotherGroupCountsAtTheNextReading)
{
    setKeyboardLayout("us,ru");
    expectNames({{0, "A"}});
    lockKeyboardGroup(1);
    expectNames({{0, "Ф"}, {49, "Space"}});
    lockKeyboardGroup(0);
    expectNames({{0, "A"}});
}

TEST_F(KeyboardLayout, aGroupOutOfRangeWrapsAsTheServersDoes)
{
    setKeyboardLayout("us,de");
    lockKeyboardGroup(3);
    expectNames({{6, "Y"}});
    lockKeyboardGroup(2);
    expectNames({{6, "Z"}});
}

TEST_F(KeyboardLayout, switchedWhileAKeyIsHeldIsStillReadWithoutModifiers)
{
    setKeyboardLayout("de");
    expectNames({{6, "Y"}});
    constexpr int leftShift = 42;
    constexpr int rightAlt = 100;
    keyDown(leftShift);
    keyDown(rightAlt);
    expectNames({{12, "Q"}, {18, "1"}, {65, ","}});
    EXPECT_EQ(translatedKey(12), "q");
    keyUp(rightAlt);
    keyUp(leftShift);
}

TEST_F(KeyboardLayout, capsLockDoesNotMatter)
{
    constexpr int capsLock = 58;
    pressKey(capsLock);
    setKeyboardLayout("us");
    EXPECT_EQ(translatedKey(0), "a");
    pressKey(capsLock);
    EXPECT_EQ(translatedKey(0), "a");
}

TEST_F(KeyboardLayout, ofASourceReadBeforeStaysWhatItWas)
{
    setKeyboardLayout("de");
    expectNames({{6, "Y"}});
    const UCKeyboardLayoutRef german =
        TISGetInputSourceProperty(TISCopyCurrentKeyboardLayoutInputSource(), kTISPropertyUnicodeKeyLayoutData);
    setKeyboardLayout("us");
    expectNames({{6, "Z"}});
    quint32 deadKeyState = 0;
    quint64 length = 0;
    char16_t unit = 0;
    EXPECT_EQ(UCKeyTranslate(german, 6, kUCKeyActionDown, 0, 0, 0, &deadKeyState, 1, &length, &unit), 0);
    EXPECT_EQ(unit, u'y');
}

TEST_F(KeyboardLayout, keysMovedAboutByAnOptionAreNamedByWhatTheyGive)
{
    setKeyboardLayout("us", {}, {"ctrl:swapcaps"});
    expectNames({{0, "A"}, {57, ""}, {59, ""}});
    setKeyboardLayout("us", "dvorak");
    expectNames({{6, ";"}, {12, "'"}, {0, "A"}});
}

TEST_F(KeyboardLayout, aHundredSwitchesInOneGoEndInTheLast)
{
    setKeyboardLayout("us,ru");
    for (int turn = 0; turn < 101; ++turn)
        lockKeyboardGroup(turn % 2);
    lockKeyboardGroup(1);
    expectNames({{0, "Ф"}});
}

TEST_F(KeyboardLayout, switchedTwentyThousandTimesWhileNoKeyIsNamedPilesUpNothing)
{
    constexpr int rounds = 100, switches = 200, someKiB = 128;
    setKeyboardLayout("us,ru");
    lockKeyboardGroup(0);
    expectNames({{0, "A"}});
    const qint64 unread = unreadBytes(); // connections of the test that nobody reads
    qint64 memory = 0;
    for (int round = -10; round < rounds; ++round) {
        if (round == 0)
            memory = memoryOfTheServer();
        switchKeyboardGroups(switches);
        runPendingEvents();
    }
    EXPECT_TRUE(waitUntil([unread] { return unreadBytes() <= unread; })) << unreadBytes();
    EXPECT_GT(memory, 0);
    EXPECT_LT(memoryOfTheServer(), memory + someKiB);
    expectNames({{0, "A"}});
}
