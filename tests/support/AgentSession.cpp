#include "AgentSession.h"

#include "KTXConstants.h"
#include "Wait.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

AgentSession::AgentSession()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.path()));
}

AgentSession::~AgentSession()
{
    qputenv("XDG_CONFIG_HOME", previous_);
}

QString AgentSession::settingsPath() const
{
    return folder_.filePath("lumaroo/" + KTXLMAppID + ".plist");
}

QVariantMap AgentSession::stored() const
{
    QFile file(settingsPath());
    return file.open(QIODevice::ReadOnly) ? readPropertyList(file.readAll()).value.toMap() : QVariantMap();
}

void AgentSession::store(const QVariantMap &values) const
{
    putSettingsFile(writeBinaryPropertyList(values));
}

void AgentSession::putSettingsFile(const QByteArray &content) const
{
    QDir(folder_.path()).mkpath("lumaroo");
    QSaveFile file(settingsPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    ASSERT_TRUE(file.commit());
}

testing::AssertionResult AgentSession::announces(const QList<BusNotification> &expected)
{
    waitUntil([&] { return recorder.notifications().size() >= expected.size(); });
    if (recorder.notifications() == expected)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "announced: " << recorder.names().join(", ").toStdString();
}

bool AgentSession::waitForLaunchOf(AgentProgram &agent)
{
    const bool isLaunched =
        agent.waitForLaunch() && waitUntil([this] { return recorder.names().contains(KTXLMAgentLaunched); });
    recorder.clear();
    return isLaunched;
}

void AgentSession::paneAnnounces(const QString &name)
{
    recorder.post(name, KTXLMAppID);
}

BusNotification AgentSession::launched(int version)
{
    return {KTXLMAgentLaunched, KTXLMAgentID, {{KTXLMAgentVersion, version}}, true};
}

BusNotification AgentSession::terminating()
{
    return {KTXLMAgentIsTerminating, KTXLMAgentID, {}, true};
}

BusNotification AgentSession::changedByAgent()
{
    return {KTXLMPrefsChanged, KTXLMAgentID, {}, true};
}

int AgentSession::builtVersion()
{
    return intValue(NSBundle::infoDictionaryOnDisk(AgentProgram::builtBundle()).value("CFBundleVersion"));
}

AgentSessionAfterFirstLaunch::AgentSessionAfterFirstLaunch(QVariantMap settings)
{
    settings.insert(KTXFirstLaunch, true);
    store(settings);
}
