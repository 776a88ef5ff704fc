// What a stranger puts on the bus becomes a notification of plain values, or none. The messages go over a real
// connection between two ends in this process, so that they arrive as the bus library hands them over.

#include "platform/foundation/notifications/linux/NotificationMessage.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServer>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDateTime>
#include <QTimer>
#include <array>
#include <bit>
#include <cstdlib>
#include <functional>
#include <memory>

namespace {

/// Bytes from the fuzzer, zeros after their end.
class Bytes
{
public:
    Bytes(const uint8_t *data, size_t size) : data_(reinterpret_cast<const char *>(data), qsizetype(size)) { }
    bool isEmpty() const { return place_ >= data_.size(); }
    uint8_t byte() { return isEmpty() ? 0 : uint8_t(data_[place_++]); }
    QByteArray some()
    {
        const QByteArray taken = data_.mid(place_, byte() % 24);
        place_ += taken.size();
        return taken;
    }
    QString text() { return QString::fromUtf8(some()); }
    quint64 number()
    {
        quint64 result = 0;
        for (int count = byte() % 9; count > 0; --count)
            result = result << 8 | byte();
        return result;
    }

private:
    QByteArray data_;
    qsizetype place_ = 0;
};

constexpr int deepest = 12;

QVariant anyValue(Bytes &bytes, int level);

QVariant arrayOfTexts(Bytes &bytes)
{
    QStringList texts;
    for (int count = bytes.byte() % 5; count > 0; --count)
        texts += bytes.text();
    return texts;
}

QVariantList list(Bytes &bytes, int level)
{
    QVariantList values;
    for (int count = bytes.byte() % 5; count > 0; --count)
        values += anyValue(bytes, level + 1);
    return values;
}

QVariantMap map(Bytes &bytes, int level)
{
    QVariantMap values;
    for (int count = bytes.byte() % 5; count > 0; --count) {
        const QString key = bytes.text();
        values.insert(key, anyValue(bytes, level + 1));
    }
    return values;
}

QVariant structure(Bytes &bytes, int level)
{
    QDBusArgument argument;
    argument.beginStructure();
    argument << int(bytes.number());
    for (int count = bytes.byte() % 3; count > 0; --count)
        argument << QDBusVariant(anyValue(bytes, level + 1));
    argument << bytes.text();
    argument.endStructure();
    return QVariant::fromValue(argument);
}

QVariant arrayOfNumbers(Bytes &bytes)
{
    QDBusArgument argument;
    argument.beginArray(QMetaType::fromType<short>());
    for (int count = bytes.byte() % 5; count > 0; --count)
        argument << short(bytes.number());
    argument.endArray();
    return QVariant::fromValue(argument);
}

QVariant numberedMap(Bytes &bytes, int level)
{
    QDBusArgument argument;
    argument.beginMap(QMetaType::fromType<uint>(), QMetaType::fromType<QDBusVariant>());
    for (int count = bytes.byte() % 4; count > 0; --count) {
        argument.beginMapEntry();
        argument << uint(bytes.number()) << QDBusVariant(anyValue(bytes, level + 1));
        argument.endMapEntry();
    }
    argument.endMap();
    return QVariant::fromValue(argument);
}

QVariant dateLike(Bytes &bytes)
{
    QDBusArgument argument;
    argument.beginStructure();
    argument.beginStructure();
    argument << int(bytes.number()) << int(bytes.number()) << int(bytes.number());
    argument.endStructure();
    argument.beginStructure();
    argument << int(bytes.number()) << int(bytes.number()) << int(bytes.number()) << int(bytes.number());
    argument.endStructure();
    argument << int(bytes.number());
    argument.endStructure();
    return QVariant::fromValue(argument);
}

QVariant anyNumber(Bytes &bytes)
{
    const quint64 number = bytes.number();
    switch (bytes.byte() % 9) {
    case 0:
        return (number & 1) == 1;
    case 1:
        return QVariant::fromValue(uchar(number));
    case 2:
        return QVariant::fromValue(short(number));
    case 3:
        return QVariant::fromValue(ushort(number));
    case 4:
        return int(number);
    case 5:
        return uint(number);
    case 6:
        return qint64(number);
    case 7:
        return number;
    default:
        return std::bit_cast<double>(number);
    }
}

QVariant anyValue(Bytes &bytes, int level)
{
    if (level > deepest || bytes.isEmpty())
        return "end";
    switch (bytes.byte() % 13) {
    case 0:
        return list(bytes, level);
    case 1:
        return map(bytes, level);
    case 2:
        return structure(bytes, level);
    case 3:
        return numberedMap(bytes, level);
    case 4:
        return QVariant::fromValue(QDBusVariant(anyValue(bytes, level + 1)));
    case 5:
        return arrayOfTexts(bytes);
    case 6:
        return arrayOfNumbers(bytes);
    case 7:
        return dateLike(bytes);
    case 8:
        return bytes.some();
    case 9:
        return QVariant::fromValue(QDBusObjectPath("/a/path"));
    case 10:
        return QVariant::fromValue(QDBusSignature("a{sv}"));
    case 11:
        return bytes.text();
    default:
        return anyNumber(bytes);
    }
}

QDBusMessage anyMessage(Bytes &bytes)
{
    if (bytes.byte() % 4 == 1)
        return notificationMessage(bytes.text(), bytes.text(), map(bytes, 0), true);
    QDBusMessage message =
        QDBusMessage::createSignal(notificationPath(), notificationInterface(), notificationMember());
    if (bytes.byte() % 4 == 1)
        message.setArguments(list(bytes, 0));
    else
        message << bytes.text() << bytes.text() << map(bytes, 0) << true;
    return message;
}

bool isPlain(const QVariant &value);

bool isPlainMap(const QVariantMap &values)
{
    return std::all_of(values.cbegin(), values.cend(), isPlain);
}

bool isPlain(const QVariant &value)
{
    static const QList<int> types{QMetaType::Bool, QMetaType::LongLong, QMetaType::Double, QMetaType::QString,
        QMetaType::QByteArray, QMetaType::QDateTime};
    if (value.typeId() == QMetaType::QVariantMap)
        return isPlainMap(value.toMap());
    const QVariantList entries = value.toList();
    return value.typeId() == QMetaType::QVariantList ? std::all_of(entries.cbegin(), entries.cend(), isPlain)
                                                     : types.contains(value.typeId());
}

/// Both ends of a connection without a bus.
class Link : public QObject
{
    Q_OBJECT

public:
    Link() : server_("unix:tmpdir=/tmp"), sender_(QString())
    {
        connect(&server_, &QDBusServer::newConnection, this, &Link::accept);
        sender_ = QDBusConnection::connectToPeer(server_.address(), "sender");
        run([this] { return isAccepted_; });
    }

    void carry(const QDBusMessage &message)
    {
        const int expected = received_ + 1;
        if (sender_.send(message))
            run([&] { return received_ == expected; });
    }

private Q_SLOTS:
    void receive(const QDBusMessage &message)
    {
        ++received_;
        const std::optional<NSNotification> notification = notificationFromMessage(message);
        if (notification && !isPlainMap(notification->userInfo))
            std::abort();
        if (!notification && message.signature() == notificationSignature())
            std::abort();
    }

private:
    void accept(QDBusConnection connection)
    {
        isAccepted_ = connection.connect(
            {}, notificationPath(), notificationInterface(), notificationMember(), this, SLOT(receive(QDBusMessage)));
        receiver_ = std::make_unique<QDBusConnection>(connection);
    }

    /// A message that is lost on its way is an error of its own.
    void run(const std::function<bool()> &condition)
    {
        QTimer limit;
        limit.setSingleShot(true);
        connect(&limit, &QTimer::timeout, [] { std::abort(); });
        limit.start(20000);
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    QDBusServer server_;
    QDBusConnection sender_;
    std::unique_ptr<QDBusConnection> receiver_;
    bool isAccepted_ = false;
    int received_ = 0;
};

Link &link()
{
    static int argumentCount = 1;
    static std::array<char *, 2> arguments{const_cast<char *>("BusMessageFuzzer"), nullptr};
    static auto *const application = new QCoreApplication(argumentCount, arguments.data());
    static auto *const result = new Link;
    Q_UNUSED(application)
    return *result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Bytes bytes(data, size);
    link().carry(anyMessage(bytes));
    return 0;
}

#include "BusMessageFuzzer.moc"
