#pragma once

#include "SelectionSession.h"

#include <QProcess>
#include <memory>

/// The built tutorial as its own process, and a user at the keyboard; killed with the object if it still runs.
class TutorialProgram
{
public:
    /// With these variables of the environment besides the test's own.
    explicit TutorialProgram(const QMap<QString, QString> &variables = {});
    ~TutorialProgram();

    static QString builtExecutable();

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 processId() const { return process_.processId(); }
    void signal(int number) const;
    /// Waits for its end; its exit status, or -1 when it does not end or was ended by a signal.
    int exitStatus();
    QString errors();

private:
    QProcess process_;
};

/// Settings of each test's own, the real agent where a test starts it, and the tutorial.
class TutorialSession : public AgentSessionAfterFirstLaunch
{
public:
    TutorialSession();
    ~TutorialSession() override;

    void startAgent(const QVariantMap &settings = {});
    void startTutorial(const QMap<QString, QString> &variables = {});

    /// Waits until a window has the focus, and the keyboard.
    static bool isActive(const QString &title);
    /// Waits for a step, until its first window has the focus.
    static testing::AssertionResult isAtStep(const QString &place, const QString &window);
    /// Waits until the guide, which is on no step, has the focus.
    static bool isAtPage(const QString &title = QStringLiteral("Lumaroo tutorial"));
    /// Goes to a step, counted from 1, of all six by skipping those before it.
    static testing::AssertionResult skipTo(int step);
    /// Whether it is stored that the tutorial was closed.
    bool isClosedForGood() const;

    std::unique_ptr<AgentProgram> agent;
    std::unique_ptr<TutorialProgram> tutorial;
};
