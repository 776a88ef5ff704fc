#include "platform/foundation/propertylists/ValueArguments.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <QDateTime>
#include <QHash>
#include <cmath>

namespace {

using Reader = QVariant (*)(const QString &text);

QVariant readBoolean(const QString &text)
{
    static const QHash<QString, bool> words{{QStringLiteral("true"), true}, {QStringLiteral("yes"), true},
        {QStringLiteral("1"), true}, {QStringLiteral("false"), false}, {QStringLiteral("no"), false},
        {QStringLiteral("0"), false}};
    const auto word = words.find(text.toLower());
    return word == words.end() ? QVariant() : *word;
}

QVariant readInteger(const QString &text)
{
    bool valid = false;
    const qlonglong number = text.toLongLong(&valid);
    return valid ? QVariant(number) : QVariant();
}

QVariant readFloat(const QString &text)
{
    bool valid = false;
    const float number = text.toFloat(&valid);
    return valid && std::isfinite(number) ? QVariant(number) : QVariant();
}

QVariant readString(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

QVariant readDate(const QString &text)
{
    QDateTime date = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (date.timeSpec() == Qt::LocalTime)
        date.setTimeSpec(Qt::UTC);
    return date.isValid() ? QVariant(date.toUTC()) : QVariant();
}

QVariant readData(const QString &text)
{
    const QString digits = QString(text).remove(u' ');
    const QByteArray data = QByteArray::fromHex(digits.toLatin1());
    return data.size() * 2 == digits.size() ? QVariant(data) : QVariant();
}

const QHash<QString, Reader> &readers()
{
    static const QHash<QString, Reader> all{{QStringLiteral("-bool"), readBoolean},
        {QStringLiteral("-int"), readInteger}, {QStringLiteral("-float"), readFloat},
        {QStringLiteral("-string"), readString}, {QStringLiteral("-date"), readDate},
        {QStringLiteral("-data"), readData}};
    return all;
}

const QString &dictionaryFlag()
{
    static const QString flag = QStringLiteral("-dict");
    return flag;
}

const QString &listFlag()
{
    static const QString flag = QStringLiteral("-array");
    return flag;
}

QVariant readDictionary(const QString &text)
{
    const PropertyListReading reading = readPropertyList(text.toUtf8());
    if (!reading || reading.value.typeId() != QMetaType::QVariantMap)
        throw UsageError(QStringLiteral("-dict needs pairs of key and text, or a dictionary as an XML property list"));
    return reading.value;
}

/// All arguments up to the next option belong to the dictionary.
QVariant takeDictionary(QStringList &arguments, const ArgumentTest &isOption)
{
    if (!arguments.isEmpty() && arguments.first().trimmed().startsWith(u'<'))
        return readDictionary(arguments.takeFirst());
    QVariantMap dictionary;
    while (!arguments.isEmpty() && !isOption(arguments.first())) {
        const QString key = arguments.takeFirst();
        if (arguments.isEmpty() || isOption(arguments.first()))
            throw UsageError(QStringLiteral("\"%1\" in the dictionary has no value").arg(key));
        dictionary.insert(key, readString(arguments.takeFirst()));
    }
    return dictionary;
}

/// Likewise.
QVariant takeList(QStringList &arguments, const ArgumentTest &isOption)
{
    QVariantList texts;
    while (!arguments.isEmpty() && !isOption(arguments.first()))
        texts.append(readString(arguments.takeFirst()));
    return texts;
}

} // namespace

bool isTypeFlag(const QString &argument)
{
    return readers().contains(argument) || argument == dictionaryFlag() || argument == listFlag();
}

QVariant takeValue(const QString &flag, QStringList &arguments, const ArgumentTest &isOption)
{
    if (flag == dictionaryFlag())
        return takeDictionary(arguments, isOption);
    if (flag == listFlag())
        return takeList(arguments, isOption);
    if (arguments.isEmpty())
        throw UsageError(QStringLiteral("%1 needs a value").arg(flag));
    const QString text = arguments.takeFirst();
    QVariant value = readers().value(flag)(text);
    if (!value.isValid())
        throw UsageError(QStringLiteral("\"%1\" is no value for %2").arg(text, flag));
    return value;
}
