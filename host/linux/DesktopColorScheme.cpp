#include "host/linux/DesktopColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");
const QString readOne = QStringLiteral("ReadOne");
const QString readNested = QStringLiteral("Read"); // older portals know only this one, which wraps the value once more
constexpr uint prefersDark = 1;

} // namespace

DesktopColorScheme::DesktopColorScheme(QObject *parent) : QObject(parent)
{
    QDBusConnection::sessionBus().connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(takeChange(QString, QString, QDBusVariant)));
    ask(readOne);
}

void DesktopColorScheme::ask(const QString &method)
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, method);
    question << appearanceGroup << colorSchemeKey;
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, method] { takeAnswer(answer, method); });
}

void DesktopColorScheme::takeAnswer(QDBusPendingCallWatcher *answer, const QString &method)
{
    answer->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (reply.isError() && method == readOne && reply.error().type() == QDBusError::UnknownMethod)
        ask(readNested);
    // A change that overtook the answer is newer than it.
    else if (!reply.isError() && !heardOfChange_)
        take(reply.value().variant());
}

void DesktopColorScheme::takeChange(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group != appearanceGroup || key != colorSchemeKey)
        return;
    heardOfChange_ = true;
    take(value.variant());
}

void DesktopColorScheme::take(const QVariant &value)
{
    QVariant plain = value;
    if (plain.canConvert<QDBusVariant>())
        plain = plain.value<QDBusVariant>().variant();
    if (plain.typeId() == QMetaType::UInt)
        Q_EMIT changed(plain.toUInt() == prefersDark ? ColorScheme::Dark : ColorScheme::Light);
}
