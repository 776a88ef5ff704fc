#include "platform/foundation/propertylists/Description.h"

#include <QDateTime>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QString describe(const QVariant &value, int level);

QString blanks(int level)
{
    return QString(qsizetype(4) * level, u' ');
}

QString hexadecimal(const QByteArray &data)
{
    QStringList groups;
    for (qsizetype start = 0; start < data.size(); start += 4)
        groups += QString::fromLatin1(data.mid(start, 4).toHex());
    return u'<' + groups.join(u' ') + u'>';
}

QString describeReal(double number, int digits)
{
    return QString::number(number, 'g', digits);
}

/// The form of a value that is no container.
QString plainForm(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringLiteral("(null)");
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Float:
        return describeReal(value.toFloat(), 7);
    case QMetaType::Double:
        return describeReal(value.toDouble(), 16);
    case QMetaType::QByteArray:
        return hexadecimal(value.toByteArray());
    case QMetaType::QDateTime:
        return value.toDateTime().toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss '+0000'"));
    default:
        return value.toString();
    }
}

bool isPlainWord(const QString &text)
{
    const auto isPlain = [](QChar character) { return character.unicode() < 0x80 && character.isLetterOrNumber(); };
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), isPlain);
}

QString escaped(QChar character)
{
    switch (character.unicode()) {
    case u'"':
    case u'\\':
        return u'\\' + QString(character);
    case u'\n':
        return QStringLiteral("\\n");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    if (character.unicode() >= 0x20 && character.unicode() < 0x7f)
        return character;
    return QStringLiteral("\\U%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

QString quoted(const QString &text)
{
    if (isPlainWord(text))
        return text;
    QString result;
    for (const QChar character : text)
        result += escaped(character);
    return u'"' + result + u'"';
}

QString describeList(const QVariantList &list, int level)
{
    QStringList lines;
    for (const QVariant &entry : list)
        lines += blanks(level + 1) + describe(entry, level + 1);
    return QStringLiteral("(\n%1%2)")
        .arg(lines.isEmpty() ? QString() : lines.join(QStringLiteral(",\n")) + u'\n', blanks(level));
}

QString describeMap(const QVariantMap &map, int level)
{
    QString lines;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        lines += blanks(level + 1) + quoted(entry.key()) + QStringLiteral(" = ") + describe(entry.value(), level + 1)
            + QStringLiteral(";\n");
    return QStringLiteral("{\n") + lines + blanks(level) + u'}';
}

/// The form of a value inside a container.
QString describe(const QVariant &value, int level)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return describeMap(value.toMap(), level);
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return describeList(value.toList(), level);
    case QMetaType::QByteArray:
        return plainForm(value);
    default:
        return quoted(plainForm(value));
    }
}

bool isContainer(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantList
        || value.typeId() == QMetaType::QStringList;
}

int saturated(qint64 number)
{
    return int(std::clamp<qint64>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

int truncated(double number)
{
    if (std::isnan(number))
        return 0;
    return int(std::clamp<double>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

QString description(const QVariant &value)
{
    return isContainer(value) ? describe(value, 0) : plainForm(value);
}

int intValue(const QString &text)
{
    auto character = std::find_if_not(text.cbegin(), text.cend(), [](QChar candidate) { return candidate.isSpace(); });
    const bool isNegative = character != text.cend() && *character == u'-';
    if (character != text.cend() && (*character == u'-' || *character == u'+'))
        ++character;
    qint64 number = 0;
    for (; character != text.cend() && isDigit(*character); ++character)
        number =
            std::min<qint64>(number * 10 + character->digitValue(), std::numeric_limits<qint32>::max() + qint64(1));
    return saturated(isNegative ? -number : number);
}

int intValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return intValue(value.toString());
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return saturated(value.toLongLong());
    case QMetaType::ULongLong:
        return saturated(qint64(std::min<quint64>(value.toULongLong(), std::numeric_limits<qint32>::max())));
    case QMetaType::Float:
    case QMetaType::Double:
        return truncated(value.toDouble());
    default:
        return 0;
    }
}
