#include "Wait.h"
#include "platform/foundation/notifications/NSDistributedNotificationCenter.h"

#include <QCoreApplication>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

const QString agent = "com.quorvane.LumarooAgent";
const char *const roleVariable = "LUMAROO_TEST_ANSWERS";

/// The other program: says that it is there, answers each "Question" with an "Answer", ends at "End".
int answerUntilTheEnd()
{
    int count = 0;
    std::array<char *, 2> arguments{const_cast<char *>("answers"), nullptr};
    int argumentCount = 1;
    QCoreApplication application(argumentCount, arguments.data());
    NSDistributedNotificationCenter *const center = NSDistributedNotificationCenter::defaultCenter();
    const auto post = [center](const QString &name, const QVariantMap &userInfo) {
        center->postNotificationNameObjectUserInfoDeliverImmediately(name, agent, userInfo, true);
    };
    center->addObserverSelectorNameObject(
        &application,
        [&](const NSNotification &) {
            post("Answer", {{"count", ++count}});
        },
        "Question");
    center->addObserverSelectorNameObject(
        &application, [&](const NSNotification &) { application.quit(); }, "End");
    post("Here", {});
    return application.exec();
}

/// This program is started a second time as the other one, before there are tests or an application object.
[[maybe_unused]] const bool isTheOtherProgram = [] {
    if (qEnvironmentVariableIsSet(roleVariable))
        std::exit(answerUntilTheEnd());
    return false;
}();

} // namespace

TEST(TwoProcesses, tellEachOtherInOrder)
{
    QObject observer;
    bool isHere = false;
    QList<qint64> counts;
    NSDistributedNotificationCenter *const center = NSDistributedNotificationCenter::defaultCenter();
    center->addObserverSelectorNameObject(
        &observer, [&](const NSNotification &) { isHere = true; }, "Here", agent);
    center->addObserverSelectorNameObject(
        &observer,
        [&](const NSNotification &notification) { counts += notification.userInfo.value("count").toLongLong(); },
        "Answer");

    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(roleVariable, "1");
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(), {});
    ASSERT_TRUE(waitUntil([&] { return isHere; })) << other.readAllStandardError().toStdString();
    for (int question = 0; question < 3; ++question)
        center->postNotificationNameObjectUserInfoDeliverImmediately("Question", {}, {}, true);
    EXPECT_TRUE(waitUntil([&] { return counts.size() == 3; }));
    EXPECT_EQ(counts, QList<qint64>({1, 2, 3}));
    center->postNotificationNameObjectUserInfoDeliverImmediately("End", {}, {}, true);
    EXPECT_TRUE(waitUntil([&] { return other.state() == QProcess::NotRunning; }));
    EXPECT_EQ(other.exitCode(), 0);
}
