#include "platform/appkit/richtext/internal/RichTextCharacters.h"

#include <array>

namespace {

constexpr char16_t codePage1252From0x80[32] = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, // 88
    0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178, // 98
};

struct NamedCharacter
{
    const char *name;
    char16_t character;
};

constexpr std::array<NamedCharacter, 21> namedCharacters{{
    {"\\", u'\\'},
    {"{", u'{'},
    {"}", u'}'},
    {"~", 0x00A0},
    {"-", 0x00AD},
    {"_", 0x2011},
    {"tab", u'\t'},
    {"\t", u'\t'},
    {"line", 0x2028},
    {"bullet", 0x2022},
    {"lquote", 0x2018},
    {"rquote", 0x2019},
    {"ldblquote", 0x201C},
    {"rdblquote", 0x201D},
    {"endash", 0x2013},
    {"emdash", 0x2014},
    {"enspace", 0x2002},
    {"emspace", 0x2003},
    {"qmspace", 0x2005},
    {"zwj", 0x200D},
    {"zwnj", 0x200C},
}};

bool isPartOfPair(const QString &text, qsizetype index)
{
    const QChar character = text.at(index);
    if (character.isHighSurrogate())
        return index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
    return index > 0 && text.at(index - 1).isHighSurrogate();
}

bool isForeign(const QString &text, qsizetype index)
{
    const QChar character = text.at(index);
    if (character.isSurrogate())
        return !isPartOfPair(text, index);
    const char16_t code = character.unicode();
    const bool isControl = (code < 0x20 && code != u'\t') || (code >= 0x7F && code < 0xA0);
    const bool isMarkOfDocuments = code == 0xFDD0 || code == 0xFDD1 || code == QChar::ObjectReplacementCharacter;
    return isControl || isMarkOfDocuments || code == QChar::ParagraphSeparator;
}

} // namespace

QString textFromCodePage1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype index = 0; index < bytes.size(); ++index) {
        const auto byte = uchar(bytes[index]);
        text[index] = byte >= 0x80 && byte < 0xA0 ? codePage1252From0x80[byte - 0x80] : char16_t(byte);
    }
    return text;
}

QChar namedCharacter(QByteArrayView name)
{
    for (const NamedCharacter &candidate : namedCharacters) {
        if (name == QByteArrayView(candidate.name))
            return candidate.character;
    }
    return {};
}

QString withoutForeignCharacters(QString text)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (isForeign(text, index))
            text[index] = QChar::ReplacementCharacter;
    }
    return text;
}
