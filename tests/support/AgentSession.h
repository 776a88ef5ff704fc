#pragma once

#include "AgentProgram.h"
#include "BusRecorder.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Settings of its own for each test of the agent, as another process sees them, and everything that goes over the bus.
class AgentSession : public testing::Test
{
public:
    AgentSession();
    ~AgentSession() override;

    QString configFolder() const { return folder_.path(); }
    QString settingsPath() const;
    QVariantMap stored() const;
    void store(const QVariantMap &values) const;
    void putSettingsFile(const QByteArray &content) const;

    /// Waits until exactly these notifications have been seen since the last clear().
    testing::AssertionResult announces(const QList<BusNotification> &expected);
    /// Waits until an agent runs and the bus has carried what it announced at its start; from then on is recorded.
    bool waitForLaunchOf(AgentProgram &agent);
    /// As the pane announces something.
    void paneAnnounces(const QString &name);

    static BusNotification launched(int version = builtVersion());
    static BusNotification terminating();
    static BusNotification changedByAgent();
    static int builtVersion();

    BusRecorder recorder;

private:
    QTemporaryDir folder_;
    QByteArray previous_ = qgetenv("XDG_CONFIG_HOME");
};

/// The same where the agent has been started before, so that it writes nothing of its own.
class AgentSessionAfterFirstLaunch : public AgentSession
{
public:
    /// Its user has chosen these settings besides.
    explicit AgentSessionAfterFirstLaunch(QVariantMap settings = {});
};
