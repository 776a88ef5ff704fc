// What a crash leaves behind, of a program that really crashes.

#include "CrashProgram.h"
#include "ProgramResult.h"

#include <QDateTime>
#include <QRegularExpression>
#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

const QString separator = QStringLiteral("\n\n**********\n\n");

class CrashLog : public testing::Test
{
protected:
    QStringList linesWith(const QString &text) const { return program.lines().filter(text); }
    QStringList frames() const
    {
        return program.lines().filter(QRegularExpression(QStringLiteral("^[0-9]{3}  0x[0-9a-f]{16}")));
    }
    CrashProgram program;
};

struct Way
{
    const char *name;
    int signal;
    const char *reason;
};

class CrashLogOfAWay : public CrashLog, public testing::WithParamInterface<Way>
{
};

} // namespace

TEST_P(CrashLogOfAWay, tellsTheSignalAndEndsByIt)
{
    EXPECT_EQ(program.crash(GetParam().name), GetParam().signal);
    EXPECT_THAT(program.value("Signal").toStdString(), HasSubstr(GetParam().reason));
    EXPECT_EQ(linesWith("Process: ").size(), 1);
    EXPECT_GE(frames().size(), 1);
    EXPECT_EQ(linesWith("/libc.so.6").size(), 1) << "the record came to its end";
}

INSTANTIATE_TEST_SUITE_P(All, CrashLogOfAWay,
    testing::Values(Way{"null", SIGSEGV, "SIGSEGV (11): nothing is mapped at the address"},
        Way{"call-null", SIGSEGV, "SIGSEGV (11): nothing is mapped at the address"},
        Way{"abort", SIGABRT, "SIGABRT (6): the program gave up"}, Way{"overflow", SIGSEGV, "SIGSEGV (11): "},
        Way{"exception", SIGABRT, "SIGABRT (6): "}, Way{"noexcept", SIGABRT, "SIGABRT (6): "},
        Way{"terminate", SIGABRT, "SIGABRT (6): "}, Way{"illegal", SIGILL, "SIGILL (4): ill"},
        Way{"division", SIGFPE, "SIGFPE (8): sent by a program"},
        Way{"end-of-file", SIGBUS, "SIGBUS (7): nothing is behind the address"},
        Way{"thread", SIGSEGV, "SIGSEGV (11): "}, Way{"threads", SIGSEGV, "SIGSEGV (11): "},
        Way{"stack", SIGILL, "SIGILL (4): ill"}, Way{"in-thread-call-null", SIGSEGV, "SIGSEGV (11): nothing"},
        Way{"in-thread-abort", SIGABRT, "SIGABRT (6): the program gave up"},
        Way{"in-thread-exception", SIGABRT, "SIGABRT (6): "}, Way{"in-thread-noexcept", SIGABRT, "SIGABRT (6): "},
        Way{"in-thread-illegal", SIGILL, "SIGILL (4): ill"},
        Way{"in-thread-end-of-file", SIGBUS, "SIGBUS (7): nothing is behind the address"}),
    [](const auto &way) {
        QString name = way.param.name;
        return name.replace('-', '_').toStdString();
    });

#if defined(__x86_64__)
TEST_F(CrashLog, tellsWhatTheProcessorTakesForAFailure)
{
    EXPECT_EQ(program.crash("division-by-zero"), SIGFPE);
    EXPECT_EQ(program.value("Signal"), "SIGFPE (8): division by zero");
    EXPECT_GE(frames().size(), 2);
}
#endif

TEST_F(CrashLog, tellsTheProgramItsVersionAndTheTime)
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    program.crash("null");
    EXPECT_EQ(program.value("Process"), QStringLiteral("crash [%1]").arg(program.processId));
    EXPECT_EQ(program.value("Identifier"), "com.example.crash");
    EXPECT_EQ(program.value("Version"), "1.0 (7)");
    EXPECT_EQ(program.value("Thread"), QStringLiteral("%1 (main)").arg(program.processId));
    QDateTime time = QDateTime::fromString(program.value("Date/Time"), "yyyy-MM-dd hh:mm:ss '+0000'");
    time.setTimeSpec(Qt::UTC);
    EXPECT_GE(time, before.addSecs(-1));
    EXPECT_LE(time, QDateTime::currentDateTimeUtc());
}

TEST_F(CrashLog, namesThePlugInsThatAreLoaded)
{
    program.crash("null", {"com.quorvane.Lumaroo", "com.example.other"});
    EXPECT_EQ(linesWith("PlugIn"),
        (QStringList{"PlugIn Identifier: com.quorvane.Lumaroo", "PlugIn Identifier: com.example.other"}));
}

TEST_F(CrashLog, namesNoPlugInWhereNoneIsLoaded)
{
    program.crash("null", {""});
    EXPECT_TRUE(linesWith("PlugIn").isEmpty());
}

TEST_F(CrashLog, leavesOutThePlugInsThatItHasNoRoomFor)
{
    const QString longName(1500, 'x');
    program.crash("null", {"a", longName, longName, "b"});
    EXPECT_EQ(linesWith("PlugIn"),
        (QStringList{"PlugIn Identifier: a", "PlugIn Identifier: " + longName, "PlugIn Identifier: b"}));
}

TEST_F(CrashLog, namesAPlugInOnceHoweverOftenItIsLoaded)
{
    program.crash("null", {"com.example.one", "com.example", "com.example.one", "com.example"});
    EXPECT_EQ(
        linesWith("PlugIn"), (QStringList{"PlugIn Identifier: com.example.one", "PlugIn Identifier: com.example"}));
}

TEST_F(CrashLog, namesNoPlugInThatWasTakenBack)
{
    program.crash("null", {"a", "longer", "c", "-longer", "-never", "-a", "d", "-d", "e"});
    EXPECT_EQ(linesWith("PlugIn"), (QStringList{"PlugIn Identifier: c", "PlugIn Identifier: e"}));
}

TEST_F(CrashLog, isGivenUpWhereItsWritingIsHeldUp)
{
    EXPECT_EQ(program.crash("held-up"), SIGSEGV) << "also where other threads crash and wait for it";
    EXPECT_EQ(linesWith("Process: ").size(), 0) << "it was";
}

TEST_F(CrashLog, isMadeWithoutTheLoader)
{
    const QString bindings = program.home() + "/bindings";
    qputenv("LD_DEBUG", "bindings");
    qputenv("LD_DEBUG_OUTPUT", QFile::encodeName(bindings));
    EXPECT_EQ(program.crash("look-up"), SIGSEGV);
    qunsetenv("LD_DEBUG");
    qunsetenv("LD_DEBUG_OUTPUT");
    const QByteArray told = CrashProgram::contentOf(bindings + '.' + QString::number(program.processId));
    const qsizetype last = told.indexOf("`getdomainname'");
    ASSERT_GE(last, 0);
    EXPECT_EQ(told.mid(last).count("symbol `"), 0) << told.mid(last).toStdString();
    EXPECT_GE(frames().size(), 2);
}

TEST_F(CrashLog, tellsWhichThreadCrashedAndItsException)
{
    program.crash("in-thread-exception");
    EXPECT_EQ(program.value("Exception"), "std::out_of_range: the text");
    EXPECT_FALSE(program.value("Thread").contains("main"));
    EXPECT_NE(program.value("Thread"), QString::number(program.processId));
}

TEST_F(CrashLog, leadsFromTheFrameThatCrashedToItsFunction)
{
    program.crash("null");
    static const QRegularExpression form("^000  0x[0-9a-f]{16}  crash \\+ (0x[0-9a-f]+)$");
    const QString offset = form.match(frames().value(0)).captured(1);
    const ProgramResult function = runProgram("addr2line", {"-f", "-e", CrashProgram::built(), offset});
    EXPECT_THAT(function.output, HasSubstr("writeToNull")) << frames().join('\n').toStdString();
    EXPECT_GE(frames().filter(" crash + ").size(), 2) << "main called it";
    EXPECT_GE(frames().filter(" libc.so.6 + ").size(), 1) << "which the C library called";
}

TEST_F(CrashLog, tellsWhoCalledWhatIsNoCode)
{
    program.crash("call-null");
    EXPECT_EQ(frames().value(0), "000  0x0000000000000000");
    EXPECT_THAT(frames().value(1).toStdString(), HasSubstr(" crash + 0x"));
}

TEST_F(CrashLog, hasTheRegisters)
{
    program.crash("null");
    const QString counter = frames().value(0).section("  ", 1, 1);
    EXPECT_THAT(
        program.log().section("Registers:\n", 1).section("\n\n", 0, 0).toStdString(), HasSubstr(counter.toStdString()));
}

TEST_F(CrashLog, tellsTheAddressOfAWrongAccess)
{
    program.crash("null");
    EXPECT_EQ(program.value("Address"), "0x0000000000000000");
}

TEST_F(CrashLog, listsTheModulesWithTheirBuildIdentifiers)
{
    program.crash("null");
    const ProgramResult notes = runProgram("readelf", {"-n", CrashProgram::built()});
    const QString identifier = QString::fromStdString(notes.output).section("Build ID: ", 1).section('\n', 0, 0);
    ASSERT_FALSE(identifier.isEmpty());
    const QString line = linesWith(CrashProgram::built()).value(0);
    EXPECT_TRUE(line.contains(QStringLiteral("  <%1>  ").arg(identifier))) << line.toStdString();
}

TEST_F(CrashLog, goesAHundredFramesUpAStackThatHasOverflowed)
{
    program.crash("overflow");
    EXPECT_GE(frames().size(), 100);
    EXPECT_LE(frames().size(), 300);
}

TEST_F(CrashLog, goesOnAfterACrashOfItsOwn)
{
    EXPECT_EQ(program.crash("stack"), SIGILL) << "the first crash is what ends it";
    EXPECT_EQ(frames().size(), 1) << "the stack cannot be gone up";
    EXPECT_EQ(linesWith("Modules:").size(), 1);
    EXPECT_GE(linesWith("/libc.so.6").size(), 1);
}

TEST_F(CrashLog, goesOnAfterACrashOfItsOwnByTheSameSignal)
{
    EXPECT_EQ(program.crash("stack-push"), SIGSEGV);
    EXPECT_EQ(frames().size(), 1);
    EXPECT_GE(linesWith("/libc.so.6").size(), 1);
}

TEST_F(CrashLog, tellsTheExceptionThatNobodyCaught)
{
    program.crash("exception");
    EXPECT_EQ(program.value("Exception"), "std::out_of_range: the text");
}

TEST_F(CrashLog, tellsTheTypeOfWhatIsNoException)
{
    program.crash("no-exception");
    EXPECT_EQ(program.value("Exception"), "(anonymous namespace)::NoException");
}

TEST_F(CrashLog, tellsTheTypeOfANumberThatIsThrown)
{
    program.crash("number");
    EXPECT_EQ(program.value("Exception"), "int");
}

TEST_F(CrashLog, tellsNoExceptionWhereThereWasNone)
{
    program.crash("terminate");
    EXPECT_TRUE(program.value("Exception").isNull());
}

TEST_F(CrashLog, hasAnExceptionsTextInOneLine)
{
    program.crash("noexcept");
    EXPECT_EQ(program.value("Exception"), "std::runtime_error: two lines  **********  and the end");
    EXPECT_FALSE(program.log().contains(separator));
}

TEST_F(CrashLog, cutsALongTextBetweenTwoCharacters)
{
    program.crash("long-exception");
    EXPECT_TRUE(CrashProgram::contentOf(program.oneFile()).isValidUtf8());
    EXPECT_GT(program.value("Exception").size(), 400);
    EXPECT_LT(program.value("Exception").size(), 600);
}

TEST_F(CrashLog, holdsNothingOfTheEnvironment)
{
    qputenv("LUMAROO_SECRET", "a text of the environment");
    program.crash("null");
    EXPECT_FALSE(program.log().contains("a text of the environment"));
    EXPECT_FALSE(program.log().contains("LUMAROO_SECRET"));
}

TEST_F(CrashLog, doesNotNameTheHomeFolder)
{
    const QString copy = program.home() + "/crash";
    ASSERT_TRUE(QFile::copy(CrashProgram::built(), copy));
    program.crash(copy, "null", {});
    EXPECT_FALSE(program.log().contains(program.home()));
    EXPECT_EQ(linesWith("  ~/crash").size(), 1);
}
