#include "RunningPrograms.h"
#include "TestApplication.h"
#include "Wait.h"

#include "platform/foundation/processes/Processes.h"

#include <QDir>
#include <QProcess>
#include <algorithm>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

const QString identifier = QStringLiteral("test.application");

QList<ProcessSerialNumber> allProcesses()
{
    QList<ProcessSerialNumber> processes;
    ProcessSerialNumber process;
    while (GetNextProcess(&process) == noErr)
        processes += process;
    EXPECT_EQ(process, kNoProcess) << "what the end of the list leaves";
    return processes;
}

QVariantMap informationAbout(const ProcessSerialNumber &process)
{
    return ProcessInformationCopyDictionary(process, kProcessDictionaryIncludeAllInformationMask);
}

QString identifierOf(const ProcessSerialNumber &process)
{
    return informationAbout(process).value(kCFBundleIdentifierKey).toString();
}

/// Another value for an environment variable, or none, for as long as it lives.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value) : name_(name), before_(qgetenv(name))
    {
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value);
    }
    ~Variable() { qputenv(name_, before_); }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    const char *name_;
    QByteArray before_;
};

const char *const busVariable = "DBUS_SESSION_BUS_ADDRESS";

ProcessSerialNumber thisProcess()
{
    return {0, quint32(::getpid())};
}

} // namespace

TEST(Processes, theListHoldsEachProcessOnceAndThisOneToo)
{
    TestApplication application;
    const ProcessSerialNumber launched = application.launch();
    const QList<ProcessSerialNumber> processes = allProcesses();
    EXPECT_EQ(processes.count(thisProcess()), 1);
    EXPECT_EQ(processes.count(launched), 1);
    EXPECT_FALSE(processes.contains(kNoProcess));
    for (const ProcessSerialNumber &process : processes)
        EXPECT_EQ(processes.count(process), 1);
}

TEST(Processes, anApplicationOfAnotherSessionIsNotInTheList)
{
    TestApplication application;
    const Variable another(busVariable, "unix:path=/another/bus");
    const ProcessSerialNumber launched = application.launch();
    EXPECT_TRUE(allProcesses().contains(launched)) << "the session that this process says it is in";
    const Variable one(busVariable, "unix:path=/one/bus");
    EXPECT_FALSE(allProcesses().contains(launched));
    EXPECT_TRUE(allProcesses().contains(thisProcess())) << "what is no application is in each";
}

TEST(Processes, anApplicationIsInTheListFromItsFirstMomentOn)
{
    const TestApplication application;
    for (int start = 0; start < 30; ++start) {
        QProcess process;
        process.start(application.program(), {});
        const ProcessSerialNumber started{0, quint32(process.processId())};
        ASSERT_NE(started, kNoProcess);
        while (informationAbout(started).value(kCFBundleExecutableKey) != application.program()) { }
        ASSERT_TRUE(allProcesses().contains(started)) << start;
        process.kill();
        process.waitForFinished();
    }
}

TEST(Processes, theListGoesOnBehindAnApplicationOfAnotherSession)
{
    TestApplication application, elsewhere;
    const ProcessSerialNumber before = application.launch();
    {
        const Variable another(busVariable, "unix:path=/another/bus");
        elsewhere.launch();
    }
    const ProcessSerialNumber after = application.launch();
    const QList<ProcessSerialNumber> processes = allProcesses();
    EXPECT_TRUE(processes.contains(before));
    EXPECT_TRUE(processes.contains(after));
}

TEST(Processes, aSessionIsTheSameByItsBusHoweverThatIsNamed)
{
    TestApplication application;
    const Variable folder("XDG_RUNTIME_DIR", "/run/session");
    const QByteArray names[] = {"unix:path=/run/session/bus", "unix:path=/run/session/bus,guid=0123", {}};
    for (const QByteArray &name : names) {
        const Variable started(busVariable, name);
        const ProcessSerialNumber launched = application.launch();
        for (const QByteArray &ours : names) {
            const Variable now(busVariable, ours);
            EXPECT_TRUE(allProcesses().contains(launched)) << name.constData() << " and " << ours.constData();
        }
    }
}

TEST(Processes, aProcessThatIsNotInTheListEndsTheWalk)
{
    ProcessSerialNumber process{0, 0x7fffffff};
    EXPECT_EQ(GetNextProcess(&process), procNotFound);
    EXPECT_EQ(process, kNoProcess);
    EXPECT_EQ(GetNextProcess(nullptr), paramErr);
}

TEST(Processes, aWalkGoesOnFromWhereItsCallerStands)
{
    const QList<ProcessSerialNumber> processes = allProcesses();
    ASSERT_GE(processes.size(), 2);
    ProcessSerialNumber process;
    ASSERT_EQ(GetNextProcess(&process), noErr);
    process = processes.first();
    ASSERT_EQ(GetNextProcess(&process), noErr);
    EXPECT_EQ(process, processes[1]);
    process = processes.first();
    ASSERT_EQ(GetNextProcess(&process), noErr);
    EXPECT_EQ(process, processes[1]) << "a step back";
}

TEST(Processes, aProcessStartedDuringAWalkIsInTheNextOne)
{
    TestApplication application;
    ProcessSerialNumber process;
    ASSERT_EQ(GetNextProcess(&process), noErr);
    const ProcessSerialNumber launched = application.launch();
    bool isSeen = false;
    while (GetNextProcess(&process) == noErr)
        isSeen = isSeen || process == launched;
    EXPECT_FALSE(isSeen);
    EXPECT_TRUE(allProcesses().contains(launched));
}

TEST(Processes, aProcessThatVanishesBetweenTwoStepsIsPassedOver)
{
    TestApplication application;
    const ProcessSerialNumber launched = application.launch();
    ProcessSerialNumber process;
    while (process != launched)
        ASSERT_EQ(GetNextProcess(&process), noErr);
    killProcess(pid_t(launched.lowLongOfPSN));
    EXPECT_TRUE(informationAbout(process).isEmpty());
    while (GetNextProcess(&process) == noErr)
        EXPECT_NE(process, launched);
    EXPECT_EQ(process, kNoProcess);
}

TEST(Processes, anApplicationHasTheIdentifierOfItsBundle)
{
    TestApplication application;
    const QVariantMap information = informationAbout(application.launch());
    EXPECT_EQ(information.value(kCFBundleIdentifierKey), identifier);
    EXPECT_EQ(information.value(kCFBundleExecutableKey), application.program());
}

TEST(Processes, aProgramOutsideAnApplicationHasNoIdentifier)
{
    EXPECT_FALSE(informationAbout(thisProcess()).contains(kCFBundleIdentifierKey));
    EXPECT_FALSE(informationAbout(kNoProcess).contains(kCFBundleIdentifierKey));
}

TEST(Processes, aProcessThatMerelyHasTheSameFileNameHasNoIdentifier)
{
    const TestApplication application;
    QProcess process;
    process.start(TestApplication::idleProgram(), {});
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_EQ(identifierOf({0, quint32(process.processId())}), QString());
    process.kill();
    process.waitForFinished();
}

TEST(Processes, anApplicationStartedByHandHasItsIdentifierToo)
{
    const TestApplication application;
    QProcess process;
    process.start(application.program(), {});
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_EQ(identifierOf({0, quint32(process.processId())}), identifier);
    process.kill();
    process.waitForFinished();
}

TEST(Processes, anApplicationKeepsItsIdentifierWhenItsProgramIsReplacedWhileItRuns)
{
    TestApplication application;
    const ProcessSerialNumber process = application.launch();
    ASSERT_TRUE(QFile::remove(application.program()));
    application.bundle().copyProgram(QStringLiteral("Contents/Linux/idle"), TestApplication::idleProgram());
    EXPECT_EQ(identifierOf(process), identifier);
}

TEST(Processes, anApplicationKeepsItsIdentifierWhenItsBundleIsMovedAway)
{
    TestApplication application;
    const ProcessSerialNumber process = application.launch();
    const QString moved = QFileInfo(application.path()).path() + QStringLiteral("/Elsewhere.app");
    ASSERT_TRUE(QDir().rename(application.path(), moved));
    EXPECT_EQ(identifierOf(process), identifier);
}

TEST(Processes, anApplicationKeepsItsIdentifierWhenItsBundleIsMovedAwayAndRemoved)
{
    TestApplication application;
    const ProcessSerialNumber process = application.launch();
    const QString moved = QFileInfo(application.path()).path() + QStringLiteral("/Old.app");
    ASSERT_TRUE(QDir().rename(application.path(), moved));
    ASSERT_TRUE(QDir(moved).removeRecursively());
    EXPECT_EQ(identifierOf(process), identifier);
}

TEST(Processes, anApplicationStartedByHandKeepsItsIdentifierWhenItsBundleIsExchangedInPlace)
{
    const TestApplication application;
    QProcess process;
    process.start(application.program(), {});
    ASSERT_TRUE(process.waitForStarted());
    ASSERT_TRUE(QDir(application.path()).removeRecursively());
    const ProcessSerialNumber number{0, quint32(process.processId())};
    EXPECT_EQ(identifierOf(number), QString()) << "nobody can tell now";
    const TestApplication another(identifier);
    ASSERT_TRUE(QDir().rename(another.path(), application.path()));
    EXPECT_EQ(identifierOf(number), identifier);
    EXPECT_EQ(informationAbout(number).value(kCFBundleExecutableKey), application.program());
    process.kill();
    process.waitForFinished();
}

TEST(Processes, aProcessThatHasEndedHasNoInformation)
{
    TestApplication application;
    const ProcessSerialNumber process = application.launch();
    killProcess(pid_t(process.lowLongOfPSN));
    EXPECT_TRUE(informationAbout(process).isEmpty());
}
