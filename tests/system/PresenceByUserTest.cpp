// The real settings and the real agent in every way that it can come and go: the line below the switch tells which.

#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "ScreenReader.h"
#include "Wait.h"

#include <QDir>
#include <csignal>
#include <linux/input-event-codes.h>

namespace {

struct Sentences
{
    const char *language;
    QString runs, off, ended, cannotStart, removed;
};

const Sentences english{"C.UTF-8",
    QStringLiteral("Lumaroo runs in the background. It stays on when you close this window."),
    QStringLiteral("Turn Lumaroo on with this switch."),
    QStringLiteral("Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch."),
    QStringLiteral("Lumaroo could not be started. Install it again, then turn it on with this switch."),
    QStringLiteral("Lumaroo was removed from this computer. Install it again to turn it on.")};
const Sentences german{"de",
    QStringLiteral("Lumaroo läuft im Hintergrund. Es bleibt eingeschaltet, wenn Sie dieses Fenster schließen."),
    QStringLiteral("Schalten Sie Lumaroo mit diesem Schalter ein."),
    QStringLiteral("Lumaroo wurde unerwartet beendet. Schalten Sie es mit diesem Schalter wieder ein."),
    QStringLiteral(
        "Lumaroo ließ sich nicht starten. Installieren Sie es neu und schalten Sie es mit diesem Schalter ein."),
    QStringLiteral("Lumaroo wurde von diesem Rechner entfernt. Installieren Sie es neu, um es einzuschalten.")};

class PresenceByUser : public InstalledProduct, public testing::WithParamInterface<const Sentences *>
{
protected:
    PresenceByUser() { qputenv("LANGUAGE", says().language); }
    ~PresenceByUser() override { qunsetenv("LANGUAGE"); }

    static const Sentences &says() { return *GetParam(); }

    /// The settings, which start the agent at their first run.
    void openWithAgent()
    {
        openSettings();
        ASSERT_TRUE(agentStarts());
        ASSERT_TRUE(tells(says().runs));
    }
    void openWithoutAgent()
    {
        storeOutside(KTXFirstLaunch, true);
        openSettings();
        ASSERT_TRUE(tells(says().off));
    }
    void openSettings()
    {
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
        settings->settledPicture();
    }
    static void pressSwitch() { pressKey(KEY_L, {KEY_LEFTALT}); }
    void killAgent(int signal) const
    {
        for (const pid_t agent : agents())
            ::kill(agent, signal);
    }
    testing::AssertionResult tells(const QString &text)
    {
        if (reader.waitForText(settings->processId(), text))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << reader.textsOf(settings->processId()).join(u'\n').toStdString();
    }

    ScreenReader reader;
    std::unique_ptr<SettingsProgram> settings;
};

TEST_P(PresenceByUser, anAgentThatIsKilledHasEndedAndCanBeTurnedOnAgain)
{
    openWithAgent();
    killAgent(SIGKILL);
    EXPECT_TRUE(tells(says().ended));
    ASSERT_TRUE(agentEnds());
    pressSwitch();
    EXPECT_TRUE(tells(says().runs)) << "the switch had gone off with it";
    EXPECT_EQ(agents().size(), 1);
}

TEST_P(PresenceByUser, anAgentThatCrashesHasEnded)
{
    openWithAgent();
    killAgent(SIGABRT);
    EXPECT_TRUE(tells(says().ended));
}

TEST_P(PresenceByUser, anAgentThatIsAskedToEndIsOff)
{
    openWithAgent();
    killAgent(SIGTERM);
    EXPECT_TRUE(tells(says().off));
}

TEST_P(PresenceByUser, anAgentThatIsTurnedOffIsOffAndRunsAgainWhenTurnedOn)
{
    openWithAgent();
    pressSwitch();
    EXPECT_TRUE(tells(says().off));
    ASSERT_TRUE(agentEnds());
    pressSwitch();
    EXPECT_TRUE(tells(says().runs));
}

TEST_P(PresenceByUser, anAgentWhoseProgramIsTakenAwayIsOffAndCannotBeStarted)
{
    openWithAgent();
    ASSERT_TRUE(QFile::remove(agentProgram()));
    EXPECT_TRUE(tells(says().off));
    pressSwitch();
    EXPECT_TRUE(tells(says().cannotStart));
}

TEST_P(PresenceByUser, anAgentWhoseBundleIsTakenAwayWasRemoved)
{
    openWithAgent();
    QDir bundle(pane() + "/Contents/Resources/LumarooAgent.app");
    ASSERT_TRUE(bundle.removeRecursively());
    EXPECT_TRUE(tells(says().removed));
}

TEST_P(PresenceByUser, anAgentThatMayNotBeRunCannotBeStarted)
{
    ASSERT_TRUE(QFile::setPermissions(agentProgram(), QFile::ReadOwner | QFile::WriteOwner));
    openWithoutAgent();
    pressSwitch();
    EXPECT_TRUE(tells(says().cannotStart));
}

TEST_P(PresenceByUser, anAgentThatIsThereAgainAfterItCouldNotBeStartedRuns)
{
    ASSERT_TRUE(QFile::setPermissions(agentProgram(), QFile::ReadOwner | QFile::WriteOwner));
    openWithoutAgent();
    pressSwitch();
    ASSERT_TRUE(tells(says().cannotStart));
    ASSERT_TRUE(QFile::setPermissions(agentProgram(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    // It stays as its user left it: off, and on again.
    const QImage whileOn = settings->settledPicture();
    pressSwitch();
    ASSERT_FALSE(settings->pictureAfterChangeFrom(whileOn).isNull());
    pressSwitch();
    EXPECT_TRUE(tells(says().runs));
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, PresenceByUser, testing::Values(&english, &german),
    [](const auto &given) { return std::string(given.param == &english ? "english" : "german"); });

} // namespace
