#include "updater/core/Versions.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr qsizetype longestVersion = 64;

struct Parts
{
    QStringList numbers;
    QString letters;
    QString lettersNumber;
    bool isVersion = false;
};

QString withoutLeadingZeros(const QString &digits)
{
    qsizetype zeros = 0;
    while (zeros < digits.size() && digits.at(zeros) == u'0')
        ++zeros;
    return digits.mid(zeros);
}

Parts partsOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A([0-9]+(?:\\.[0-9]+)*)([a-z]*)([0-9]*)\\z"));
    const QRegularExpressionMatch match = form.match(text.size() > longestVersion ? QString() : text);
    if (!match.hasMatch())
        return {};
    return {match.captured(1).split(u'.'), match.captured(2), match.captured(3), true};
}

/// Digits by their value, also where no integer would hold it.
int compareDigits(const QString &left, const QString &right)
{
    const QString a = withoutLeadingZeros(left);
    const QString b = withoutLeadingZeros(right);
    return a.size() != b.size() ? int(a.size() - b.size()) : QString::compare(a, b);
}

int compareNumbers(const QStringList &left, const QStringList &right)
{
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        const int difference = compareDigits(left.value(i), right.value(i));
        if (difference != 0)
            return difference;
    }
    return 0;
}

/// What has letters comes before what has none.
int compareLetters(const Parts &left, const Parts &right)
{
    if (left.letters.isEmpty() != right.letters.isEmpty())
        return left.letters.isEmpty() ? 1 : -1;
    const int difference = QString::compare(left.letters, right.letters);
    return difference != 0 ? difference : compareDigits(left.lettersNumber, right.lettersNumber);
}

} // namespace

bool isBundleVersion(const QString &text)
{
    return partsOf(text).isVersion;
}

int compareVersions(const QString &left, const QString &right)
{
    const Parts a = partsOf(left);
    const Parts b = partsOf(right);
    if (a.isVersion != b.isVersion)
        return a.isVersion ? 1 : -1;
    const int difference = compareNumbers(a.numbers, b.numbers);
    return difference != 0 ? difference : compareLetters(a, b);
}
