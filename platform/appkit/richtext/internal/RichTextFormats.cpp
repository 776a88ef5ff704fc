#include "platform/appkit/richtext/internal/RichTextFormats.h"

#include "platform/appkit/richtext/internal/RichTextTables.h"
#include "platform/appkit/richtext/internal/RichTextTokens.h"

#include <algorithm>
#include <array>

namespace {

constexpr int longestLength = 22 * 1440; // 22 inches, the longest page side of rich text
constexpr int largestSize = 2 * 288; // half points

bool isOn(const RichTextToken &word)
{
    return !word.hasParameter || word.parameter != 0;
}

void setFont(const RichTextToken &word, const RichTextTables &tables, QTextCharFormat &format)
{
    const QStringList families = tables.families(word.parameter);
    if (families.isEmpty())
        format.clearProperty(QTextFormat::FontFamilies);
    else
        format.setFontFamilies(families);
}

void setSize(const RichTextToken &word, const RichTextTables &, QTextCharFormat &format)
{
    if (word.parameter > 0)
        format.setFontPointSize(std::min(word.parameter, largestSize) / 2.0);
}

void setColor(const RichTextToken &word, const RichTextTables &tables, QTextCharFormat &format)
{
    const QColor color = tables.color(word.parameter);
    if (color.isValid())
        format.setForeground(color);
    else
        format.clearForeground();
}

void setBold(const RichTextToken &word, const RichTextTables &, QTextCharFormat &format)
{
    format.setFontWeight(isOn(word) ? QFont::Bold : QFont::Normal);
}

void setItalic(const RichTextToken &word, const RichTextTables &, QTextCharFormat &format)
{
    format.setFontItalic(isOn(word));
}

void setUnderline(const RichTextToken &word, const RichTextTables &, QTextCharFormat &format)
{
    format.setFontUnderline(isOn(word));
}

void setNoUnderline(const RichTextToken &, const RichTextTables &, QTextCharFormat &format)
{
    format.setFontUnderline(false);
}

void setStrikeOut(const RichTextToken &word, const RichTextTables &, QTextCharFormat &format)
{
    format.setFontStrikeOut(isOn(word));
}

void setPlain(const RichTextToken &, const RichTextTables &, QTextCharFormat &format)
{
    format = QTextCharFormat();
}

struct CharacterWord
{
    const char *name;
    void (*apply)(const RichTextToken &, const RichTextTables &, QTextCharFormat &);
};

constexpr std::array<CharacterWord, 9> characterWords{{
    {"plain", setPlain},
    {"f", setFont},
    {"fs", setSize},
    {"cf", setColor},
    {"b", setBold},
    {"i", setItalic},
    {"ul", setUnderline},
    {"ulnone", setNoUnderline},
    {"strike", setStrikeOut},
}};

struct ParagraphWord
{
    const char *name;
    void (*apply)(const RichTextToken &, QTextBlockFormat &);
};

template <Qt::AlignmentFlag alignment>
void align(const RichTextToken &, QTextBlockFormat &format)
{
    format.setAlignment(alignment);
}

template <void (QTextBlockFormat::*setLength)(qreal)>
void space(const RichTextToken &word, QTextBlockFormat &format)
{
    (format.*setLength)(documentLength(std::max(word.parameter, 0)));
}

void indentFirstLine(const RichTextToken &word, QTextBlockFormat &format)
{
    format.setTextIndent(documentLength(word.parameter));
}

void setPlainParagraph(const RichTextToken &, QTextBlockFormat &format)
{
    format = QTextBlockFormat();
}

constexpr std::array<ParagraphWord, 10> paragraphWords{{
    {"pard", setPlainParagraph},
    {"ql", align<Qt::AlignLeft>},
    {"qr", align<Qt::AlignRight>},
    {"qc", align<Qt::AlignHCenter>},
    {"qj", align<Qt::AlignJustify>},
    {"sb", space<&QTextBlockFormat::setTopMargin>},
    {"sa", space<&QTextBlockFormat::setBottomMargin>},
    {"li", space<&QTextBlockFormat::setLeftMargin>},
    {"ri", space<&QTextBlockFormat::setRightMargin>},
    {"fi", indentFirstLine},
}};

template <typename Table>
auto find(const Table &table, const RichTextToken &word)
{
    return std::find_if(table.begin(), table.end(), [&word](const auto &entry) { return word.text == entry.name; });
}

} // namespace

bool applyCharacterWord(const RichTextToken &word, const RichTextTables &tables, QTextCharFormat &format)
{
    const auto entry = find(characterWords, word);
    if (entry == characterWords.end())
        return false;
    entry->apply(word, tables, format);
    return true;
}

bool applyParagraphWord(const RichTextToken &word, QTextBlockFormat &format)
{
    const auto entry = find(paragraphWords, word);
    if (entry == paragraphWords.end())
        return false;
    entry->apply(word, format);
    return true;
}

qreal documentLength(int twentiethsOfAPoint)
{
    return std::clamp(twentiethsOfAPoint, -longestLength, longestLength) / 15.0;
}
