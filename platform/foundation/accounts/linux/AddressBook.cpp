#include "platform/foundation/accounts/ABAddressBook.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <unistd.h>

namespace {

const QString service = QStringLiteral("org.freedesktop.Accounts");
const QString userInterface = QStringLiteral("org.freedesktop.Accounts.User");
const QString connectionName = QStringLiteral("lumaroo-accounts");
constexpr int longestWait = 300; // ms, for everything

/// Where the system's bus is. (The bus library asks the environment once in a process.)
QString systemBus()
{
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", QStringLiteral("unix:path=/var/run/dbus/system_bus_socket"));
}

/// Asks the accounts service, on a connection that lives no longer than the question.
class AccountsService
{
public:
    AccountsService() : bus_(QDBusConnection::connectToBus(systemBus(), connectionName)) { }
    ~AccountsService() { QDBusConnection::disconnectFromBus(connectionName); }
    Q_DISABLE_COPY_MOVE(AccountsService)

    /// The user's e-mail address; no value without an answer.
    std::optional<QString> emailOfUser(uid_t user);

private:
    /// The answer's only value; no value without one.
    QVariant answerTo(const QDBusMessage &question);

    QDBusConnection bus_;
    QDeadlineTimer deadline_{longestWait};
};

QVariant AccountsService::answerTo(const QDBusMessage &question)
{
    const int time = int(deadline_.remainingTime());
    if (time <= 0 || !bus_.isConnected())
        return {};
    const QDBusMessage answer = bus_.call(question, QDBus::Block, time);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
}

std::optional<QString> AccountsService::emailOfUser(uid_t user)
{
    QDBusMessage whichUser = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/Accounts"), service, QStringLiteral("FindUserById"));
    whichUser << qlonglong(user);
    const QString path = answerTo(whichUser).value<QDBusObjectPath>().path();
    if (path.isEmpty())
        return {};
    QDBusMessage whichEmail = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    whichEmail << userInterface << QStringLiteral("Email");
    const QVariant email = answerTo(whichEmail);
    if (!email.isValid())
        return {};
    return email.value<QDBusVariant>().variant().toString().trimmed();
}

} // namespace

ABAddressBook *ABAddressBook::sharedAddressBook()
{
    static ABAddressBook addressBook;
    return &addressBook;
}

std::optional<ABPerson> ABAddressBook::me() const
{
    const std::optional<QString> email = AccountsService().emailOfUser(::getuid());
    return email ? std::optional(ABPerson(*email)) : std::nullopt;
}
