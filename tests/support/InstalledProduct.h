#pragma once

#include "BusRecorder.h"
#include "SettingsProgram.h"

#include <QTemporaryDir>
#include <QTemporaryFile>
#include <gtest/gtest.h>
#include <memory>
#include <sys/types.h>

/// Adds entries to a bundle's Info dictionary on disk, or replaces them.
void changeInfo(const QString &bundle, const QVariantMap &changes);
/// Makes a pane bundle, with the agent in it, one of another version.
void changeVersion(const QString &paneBundle, int version);

/// The whole product as a user has it: a copy of the built pane bundle among the user's own panes, with settings of its
/// own; the settings application and the agent are real, and whatever of them runs is killed with the object.
class InstalledProduct : public testing::Test
{
protected:
    InstalledProduct();
    ~InstalledProduct() override;

    QString pane() const { return pane_; }
    QString agentProgram() const;
    QString tutorialProgram() const;
    QString launcher() const { return pane_ + QStringLiteral("/Contents/Resources/launcher"); }
    /// Puts code of a version in place of what is there, as an installer does: pane and agent.
    void install(int version) const;
    int installedVersion() const;

    QList<pid_t> agents() const;
    QList<pid_t> hosts() const;
    /// Whether one host, other than `before`, comes to show the pane and no launcher waits any more.
    bool comesBack(pid_t before) const;
    bool launchersWait(int count) const;
    bool agentStarts() const;
    bool agentEnds() const;
    /// From now on the agent that the settings start writes what happens, as --foreground has it. It is the real one; a
    /// script of its name starts it so.
    void letAgentWrite();
    /// What the agent that was started last has written so far.
    QStringList linesOfAgent();

    /// Where the product's settings are kept.
    static QString settingsFile();
    void storeOutside(const QString &key, const QVariant &value) const;

    BusRecorder bus;

private:
    QString agentItself() const { return agentProgram() + QStringLiteral("-itself"); }

    QTemporaryDir folder_;
    QTemporaryFile written_;
    QByteArray previousData_ = qgetenv("XDG_DATA_HOME");
    QString pane_;
};
