#include "platform/foundation/accounts/ABAddressBook.h"

#include <QSemaphore>
#include <dbus/dbus.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr char service[] = "org.freedesktop.Accounts";
constexpr int longestWait = 300; // ms, for everything

struct Release
{
    void operator()(DBusMessage *message) const { dbus_message_unref(message); }
    void operator()(DBusConnection *bus) const
    {
        dbus_connection_close(bus);
        dbus_connection_unref(bus);
    }
};
using Message = std::unique_ptr<DBusMessage, Release>;
using Bus = std::unique_ptr<DBusConnection, Release>;

/// Where the system's bus is. (The bus library asks the environment once in a process.)
QByteArray systemBus()
{
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address.isEmpty() ? QByteArrayLiteral("unix:path=/var/run/dbus/system_bus_socket") : address;
}

/// The answer's only value, which the caller tells the type of; false without it.
bool ask(DBusConnection *bus, DBusMessage *question, Message &answer, DBusMessageIter *value)
{
    answer.reset(dbus_connection_send_with_reply_and_block(bus, question, longestWait, nullptr));
    return answer && dbus_message_iter_init(answer.get(), value);
}

/// Null without one. A connection of our own: it lives no longer than the question.
Bus busAt(const QByteArray &address)
{
    Bus bus(dbus_connection_open_private(address.constData(), nullptr));
    // By hand: the library's own call keeps a lock meanwhile that the toolkit needs for its buses.
    const Message hello(dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "Hello"));
    Message answer;
    DBusMessageIter name;
    return bus && ask(bus.get(), hello.get(), answer, &name) ? std::move(bus) : nullptr;
}

/// Empty where the service knows no such user.
QByteArray pathOfUser(DBusConnection *bus, uid_t user)
{
    const Message question(dbus_message_new_method_call(service, "/org/freedesktop/Accounts", service, "FindUserById"));
    const auto number = dbus_int64_t(user);
    dbus_message_append_args(question.get(), DBUS_TYPE_INT64, &number, DBUS_TYPE_INVALID);
    Message answer;
    DBusMessageIter value;
    const char *path = "";
    if (ask(bus, question.get(), answer, &value) && dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_OBJECT_PATH)
        dbus_message_iter_get_basic(&value, &path);
    return path;
}

std::optional<QString> emailOfUserAt(DBusConnection *bus, const QByteArray &path)
{
    const Message question(
        dbus_message_new_method_call(service, path.constData(), "org.freedesktop.DBus.Properties", "Get"));
    const char *interface = "org.freedesktop.Accounts.User";
    const char *property = "Email";
    dbus_message_append_args(
        question.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property, DBUS_TYPE_INVALID);
    Message answer;
    DBusMessageIter value;
    if (!ask(bus, question.get(), answer, &value) || dbus_message_iter_get_arg_type(&value) != DBUS_TYPE_VARIANT)
        return {};
    DBusMessageIter content;
    dbus_message_iter_recurse(&value, &content);
    const char *email = "";
    if (dbus_message_iter_get_arg_type(&content) == DBUS_TYPE_STRING)
        dbus_message_iter_get_basic(&content, &email);
    return QString::fromUtf8(email).trimmed();
}

std::optional<QString> emailOfUser(const QByteArray &address, uid_t user)
{
    const Bus bus = busAt(address);
    const QByteArray path = bus ? pathOfUser(bus.get(), user) : QByteArray();
    return path.isEmpty() ? std::nullopt : emailOfUserAt(bus.get(), path);
}

/// Shared by the two threads: the asking one may go on before the other is through.
struct Exchange
{
    std::optional<QString> email;
    QSemaphore isThere;
};

} // namespace

ABAddressBook *ABAddressBook::sharedAddressBook()
{
    static ABAddressBook addressBook;
    return &addressBook;
}

std::optional<ABPerson> ABAddressBook::me() const
{
    // Connecting has no bound of its own: the thread stays as long as a bus says nothing. The toolkit would connect in
    // the thread of all its buses.
    const auto exchange = std::make_shared<Exchange>();
    std::thread thread([exchange, address = systemBus(), user = ::getuid()] {
        exchange->email = emailOfUser(address, user);
        exchange->isThere.release();
    });
    thread.detach();
    const bool isThere = exchange->isThere.tryAcquire(1, longestWait);
    return isThere && exchange->email ? std::optional(ABPerson(*exchange->email)) : std::nullopt;
}
