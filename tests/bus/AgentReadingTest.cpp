// When the agent reads its settings, and what it makes of them.

#include "AgentSession.h"
#include "ColorSamples.h"
#include "DefaultsProgram.h"
#include "KTXConstants.h"
#include "Wait.h"

#include <QDBusInterface>
#include <QDir>
#include <csignal>

namespace {

class RunningAgent : public AgentSessionAfterFirstLaunch
{
protected:
    void SetUp() override { ASSERT_TRUE(agent.waitForLaunch()); }

    bool waitForReading(int number) { return agent.waitForLine(QString("settings read (%1)").arg(number)); }
    void storeBesideFirstLaunch(QVariantMap values) const
    {
        values.insert(KTXFirstLaunch, true);
        store(values);
    }
    /// Different for each number up to 2048, and none is beyond the slider's bounds.
    static float delay(int number) { return float(number) / 1024; }
    static QVariantMap largeKey(int size) { return {{KTXKeycode, "126"}, {KTXUnichar, QString(size, u'x')}}; }
    qint64 residentKibibytes() const
    {
        QFile status(QString("/proc/%1/status").arg(agent.processId()));
        EXPECT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray content = status.readAll();
        return content.mid(content.indexOf("VmRSS:") + 6).trimmed().split(' ').first().toLongLong();
    }

    AgentProgram agent{{"--foreground"}, AgentProgram::builtExecutable(), withoutQuarantine()};

private:
    /// The address sanitizer keeps what is freed, which would look like growth.
    static QProcessEnvironment withoutQuarantine()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString options = environment.value("ASAN_OPTIONS");
        environment.insert("ASAN_OPTIONS", options + ":quarantine_size_mb=0:thread_local_quarantine_size_kb=0");
        return environment;
    }
};

QDBusMessage signalWith(const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(
        "/com/quorvane/DistributedNotificationCenter", "com.quorvane.DistributedNotificationCenter", "Notification");
    message.setArguments(arguments);
    return message;
}

} // namespace

TEST_F(RunningAgent, readsAgainWhenThePaneHasChangedSomething)
{
    EXPECT_TRUE(runningAgentsSetting(KTXHWrap).toBool());
    storeBesideFirstLaunch({{KTXHWrap, false}});
    EXPECT_TRUE(runningAgentsSetting(KTXHWrap).toBool());
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(2));
    EXPECT_FALSE(runningAgentsSetting(KTXHWrap).toBool());
    EXPECT_EQ(runningAgent().value("readings").toInt(), 2);
}

TEST_F(RunningAgent, saysNothingWhenItReads)
{
    recorder.clear();
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(2));
    EXPECT_EQ(recorder.names(), QStringList(KTXLMPrefsChanged));
}

TEST_F(RunningAgent, doesNotReadOnWhatAgentsOrStrangersAnnounce)
{
    recorder.post(KTXLMPrefsChanged, KTXLMAgentID);
    recorder.post(KTXLMPrefsChanged, "com.example.stranger");
    recorder.post(KTXLMPrefsChanged, {});
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(2));
    EXPECT_EQ(runningAgent().value("readings").toInt(), 2);
}

TEST_F(RunningAgent, takesUpWhatLumarooDefaultsChanges)
{
    EXPECT_EQ(runDefaults({"--notify", "write", "HorizontalSortOrder", "Center"}).status, 0);
    ASSERT_TRUE(waitForReading(2));
    EXPECT_EQ(runningAgentsSetting(KTXHSort).toString(), "Center");
}

TEST_F(RunningAgent, readsWhateverUserInformationComesAlong)
{
    const QList<QVariantMap> strange{{{KTXLMAgentVersion, "text"}}, {{KTXLMAgentVersion, -1}},
        {{KTXLMAgentVersion, std::numeric_limits<qint64>::max()}}, {{KTXLMAgentVersion, QVariantMap{{"a", 1}}}},
        {{QString(1000, 'x'), QByteArray(100000, 'y')}}};
    for (const QVariantMap &information : strange) {
        recorder.post(KTXLMPrefsChanged, KTXLMAppID, information);
        recorder.post(KTXLMAgentLaunched, KTXLMAgentID, information);
    }
    EXPECT_TRUE(waitForReading(1 + int(strange.size())));
    EXPECT_TRUE(agent.isRunning());
}

TEST_F(RunningAgent, outlivesSignalsOfAnotherShape)
{
    for (const QVariantList &arguments : QList<QVariantList>{{}, {KTXLMPrefsChanged}, {KTXLMPrefsChanged, KTXLMAppID},
             {KTXLMPrefsChanged, KTXLMAppID, "no dictionary", true}, {KTXLMPrefsChanged, KTXLMAppID, QVariantMap(), 7},
             {KTXLMAgentShouldTerminate, KTXLMAppID, 5}, {1, 2, 3, 4}, {QByteArray("bytes")}})
        recorder.post(signalWith(arguments));
    paneAnnounces(KTXLMPrefsChanged);
    EXPECT_TRUE(waitUntil([this] { return runningAgent().value("readings").toInt() >= 2; }));
    EXPECT_TRUE(agent.isRunning());
}

TEST_F(RunningAgent, outlivesCallsOfItsInterfaceThatMakeNoSense)
{
    QDBusInterface running(KTXLMAgentID, "/com/quorvane/LumarooAgent", KTXLMAgentID);
    EXPECT_EQ(running.call("Settings", 7).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(running.call("Quit", "now").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(running.call("deleteLater").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(QDBusReply<int>(running.call("Version")).value(), builtVersion());
}

TEST_F(RunningAgent, goesByWhatTheWindowShowsWhereValuesAreOfAnotherType)
{
    storeBesideFirstLaunch({{KTXHWrap, "no"}, {KTXRepeatRate, "fast"}, {KTXModifierMask, qlonglong(1) << 40},
        {KTXHSort, qlonglong(3)}, {KTXUpPref, "126"}, {KTXOverlayColor, QVariantList{1, 2}}});
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(2));
    EXPECT_EQ(runningAgentsSetting(KTXHWrap), QJsonValue(true));
    EXPECT_EQ(runningAgentsSetting(KTXRepeatRate), QJsonValue(0.0));
    EXPECT_EQ(runningAgentsSetting(KTXModifierMask), QJsonValue(0x1800));
    EXPECT_EQ(runningAgentsSetting(KTXHSort), QJsonValue("FirstSelected"));
    EXPECT_EQ(runningAgentsSetting(KTXUpPref), QJsonValue(QJsonObject{{"keycode", "126"}}));
    EXPECT_EQ(runningAgentsSetting(KTXOverlayColor).toString().toLatin1(), systemColorArchive().toBase64());
}

TEST_F(RunningAgent, goesByTheDefaultsWhereTheFileIsDamagedAndKeepsIt)
{
    putSettingsFile("bplist00 and nothing that belongs to it");
    paneAnnounces(KTXLMPrefsChanged);
    // Once more with the mark of the first launch, which has gone with the file.
    ASSERT_TRUE(waitForReading(3));
    EXPECT_EQ(runningAgentsSetting(KTXHSort).toString(), "FirstSelected");
    EXPECT_EQ(stored().keys(), QStringList({KTXFirstLaunch, KTXWelcomeShown}));
    EXPECT_TRUE(QFile::exists(settingsPath() + "~1"));
    EXPECT_EQ(agent.errors().count("does not parse"), 1) << agent.errors().toStdString();
}

TEST_F(RunningAgent, goesByTheDefaultsWhereTheFileCannotBeRead)
{
    storeBesideFirstLaunch({{KTXHSort, "Center"}});
    ASSERT_TRUE(QFile::setPermissions(settingsPath(), {}));
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(2));
    EXPECT_EQ(runningAgentsSetting(KTXHSort).toString(), "FirstSelected");
    ASSERT_TRUE(QFile::setPermissions(settingsPath(), QFile::ReadOwner));
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(3));
    EXPECT_EQ(runningAgentsSetting(KTXHSort).toString(), "Center");
}

TEST_F(AgentSession, startsOverADamagedFileAsForTheFirstTime)
{
    putSettingsFile("damaged");
    const AgentProgram agent;
    EXPECT_TRUE(announces({changedByAgent(), launched()}));
    EXPECT_TRUE(QFile::exists(settingsPath() + "~1"));
    EXPECT_EQ(stored().keys(), QStringList({KTXFirstLaunch, KTXWelcomeShown}));
}

TEST_F(RunningAgent, saysThatWhatItHasReadIsTooMuchToShow)
{
    storeBesideFirstLaunch({{KTXUpPref, largeKey(4 * 1024 * 1024)}});
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(waitForReading(2));
    const ProgramResult result = runAgent({"--print-settings"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "LumarooAgent: what the agent has read is too large to be shown\n");
    EXPECT_TRUE(agent.isRunning());
}

TEST_F(RunningAgent, doesNotGrowOverAThousandReadings)
{
    int readings = 1;
    const auto readOften = [&](int upTo) {
        while (readings < upTo) {
            storeBesideFirstLaunch({{KTXInitialDelay, delay(++readings)}, {KTXUpPref, largeKey(5000)}});
            paneAnnounces(KTXLMPrefsChanged);
            // Not after each: waiting takes longer than reading.
            if (readings % 50 == 0) {
                ASSERT_TRUE(waitForReading(readings));
            }
        }
    };
    readOften(200);
    // What the first showing brings along, as the names of keys, is no growth.
    EXPECT_EQ(runningAgentsSetting(KTXInitialDelay).toDouble(), delay(200));
    const qint64 before = residentKibibytes();
    readOften(1200);
    EXPECT_EQ(runningAgentsSetting(KTXInitialDelay).toDouble(), delay(1200));
    EXPECT_LE(residentKibibytes(), before + 2048); // a copy of the large key alone would be 5000 at each
}
