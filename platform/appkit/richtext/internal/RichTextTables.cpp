#include "platform/appkit/richtext/internal/RichTextTables.h"

#include <algorithm>

void RichTextTables::readFontWord(const RichTextToken &word)
{
    if (word.text == "f")
        fontNumber_ = word.parameter;
    else if (word.text == "fswiss")
        fontKind_ = QStringLiteral("Sans Serif");
    else if (word.text == "froman")
        fontKind_ = QStringLiteral("Serif");
    else if (word.text == "fmodern")
        fontKind_ = QStringLiteral("Monospace");
}

void RichTextTables::readFontText(const QString &text)
{
    for (const QChar character : text) {
        if (character == u';')
            endFont();
        else
            fontName_ += character;
    }
}

void RichTextTables::endFont()
{
    QStringList families{fontName_.trimmed(), fontKind_};
    families.removeAll(QString());
    families.removeDuplicates();
    fonts_.insert(fontNumber_, families);
    fontName_.clear();
    fontKind_.clear();
}

QStringList RichTextTables::families(int fontNumber) const
{
    return fonts_.value(fontNumber);
}

void RichTextTables::readColorWord(const RichTextToken &word)
{
    const int component = std::clamp(word.parameter, 0, 255);
    if (word.text == "red")
        red_ = component;
    else if (word.text == "green")
        green_ = component;
    else if (word.text == "blue")
        blue_ = component;
    else
        return;
    colorIsStated_ = true;
}

void RichTextTables::readColorText(const QString &text)
{
    for (qsizetype count = text.count(u';'); count > 0; --count)
        endColor();
}

void RichTextTables::endColor()
{
    colors_ += colorIsStated_ ? QColor(red_, green_, blue_) : QColor();
    colorIsStated_ = false;
    red_ = green_ = blue_ = 0;
}

QColor RichTextTables::color(int colorNumber) const
{
    return colors_.value(colorNumber);
}
