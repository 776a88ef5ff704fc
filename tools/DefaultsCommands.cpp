#include "DefaultsCommands.h"
#include "KTXConstants.h"
#include "platform/foundation/notifications/CFNotificationCenter.h"
#include "platform/foundation/notifications/SessionBus.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListBounds.h"

#include <QFile>
#include <QHash>
#include <cstdio>

namespace {

// One byte more than a property list may have, so that a longer one is refused.
constexpr qint64 largestFile = PropertyListBounds::maximumBytes + 1;

bool isStandardStream(const QString &file)
{
    return file.isEmpty() || file == QStringLiteral("-");
}

QVariantMap storedValues(const QString &domain)
{
    if (!CFPreferencesAppSynchronize(domain))
        throw CommandFailure(QStringLiteral("the settings of %1 cannot be read").arg(domain));
    return NSUserDefaults::standardUserDefaults()->persistentDomainForName(domain);
}

void requireKey(const DefaultsRequest &request)
{
    if (!storedValues(request.domain).contains(request.operand))
        throw CommandFailure(QStringLiteral("%1 has no key \"%2\"").arg(request.domain, request.operand));
}

void save(const QString &domain)
{
    if (!CFPreferencesAppSynchronize(domain))
        throw CommandFailure(QStringLiteral("the settings of %1 could not be changed").arg(domain));
}

void print(const QByteArray &bytes)
{
    if (std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) != size_t(bytes.size())
        || std::fflush(stdout) != 0)
        throw CommandFailure(QStringLiteral("standard output takes no more"));
}

void readValues(const DefaultsRequest &request)
{
    if (request.operand.isEmpty()) {
        print(description(storedValues(request.domain)).toUtf8() + '\n');
        return;
    }
    requireKey(request);
    print(description(CFPreferencesCopyAppValue(request.operand, request.domain)).toUtf8() + '\n');
}

void writeValue(const DefaultsRequest &request)
{
    CFPreferencesSetAppValue(request.operand, request.value, request.domain);
    save(request.domain);
}

void deleteValue(const DefaultsRequest &request)
{
    requireKey(request);
    CFPreferencesSetAppValue(request.operand, QVariant(), request.domain);
    save(request.domain);
}

/// A single write to a file that is about to be full is short, and no error yet.
bool writeAll(QFile &file, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

void exportValues(const DefaultsRequest &request)
{
    const QVariantMap values = storedValues(request.domain);
    const QByteArray bytes = request.binary ? writeBinaryPropertyList(values) : writeXMLPropertyList(values);
    if (bytes.isEmpty())
        throw CommandFailure(QStringLiteral("the settings hold what XML cannot; use --binary"));
    if (isStandardStream(request.operand)) {
        print(bytes);
        return;
    }
    // In place, since the name may stand for a pipe or a device.
    QFile file(request.operand);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, bytes))
        throw CommandFailure(QStringLiteral("%1: %2").arg(request.operand, file.errorString()));
}

QByteArray importedBytes(const QString &name)
{
    QFile file(name);
    const bool opened = isStandardStream(name) ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!opened)
        throw CommandFailure(QStringLiteral("%1: %2").arg(name, file.errorString()));
    return file.read(largestFile);
}

QVariantMap importedValues(const QString &name)
{
    const PropertyListReading reading = readPropertyList(importedBytes(name));
    const QString shownName = isStandardStream(name) ? QStringLiteral("standard input") : name;
    if (!reading)
        throw CommandFailure(QStringLiteral("%1 does not parse (byte %2: %3)")
                                 .arg(shownName)
                                 .arg(reading.errorOffset)
                                 .arg(reading.error));
    if (reading.value.typeId() != QMetaType::QVariantMap)
        throw CommandFailure(QStringLiteral("%1 holds no dictionary").arg(shownName));
    return reading.value.toMap();
}

/// XML knows one kind of real only: one that equals the 32-bit number stored already stays such a number.
QVariant asStoredBefore(const QVariant &imported, const QVariant &stored)
{
    const bool isTheSameNumber = imported.typeId() == QMetaType::Double && stored.typeId() == QMetaType::Float
        && imported.toDouble() == double(stored.toFloat());
    return isTheSameNumber ? stored : imported;
}

void importValues(const DefaultsRequest &request)
{
    QVariantMap values = importedValues(request.operand);
    const QVariantMap stored = storedValues(request.domain);
    for (auto value = values.begin(); value != values.end(); ++value) {
        *value = asStoredBefore(*value, stored.value(value.key()));
        if (!request.replace)
            CFPreferencesSetAppValue(value.key(), *value, request.domain);
    }
    if (request.replace)
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(values, request.domain);
    save(request.domain);
}

/// The settings window listens for changes by the agent, the agent for those of its domain.
void announce(const QString &domain)
{
    CFNotificationCenterRef center = CFNotificationCenterGetDistributedCenter();
    CFNotificationCenterPostNotification(center, KTXLMPrefsChanged, KTXLMAgentID, {}, true);
    CFNotificationCenterPostNotification(center, KTXLMPrefsChanged, domain, {}, true);
    if (!waitForSessionBus())
        throw CommandFailure(QStringLiteral("the change is stored, but there is no session bus to announce it on"));
}

} // namespace

void perform(const DefaultsRequest &request)
{
    static const QHash<QString, void (*)(const DefaultsRequest &)> commands{{QStringLiteral("read"), readValues},
        {QStringLiteral("write"), writeValue}, {QStringLiteral("delete"), deleteValue},
        {QStringLiteral("export"), exportValues}, {QStringLiteral("import"), importValues}};
    commands.value(request.verb)(request);
    if (request.notify)
        announce(request.domain);
}
