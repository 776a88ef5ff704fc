#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>

struct RichTextToken;
class RichTextTables;

/// Applies a control word to the format of characters. Returns false when the word says nothing about characters.
bool applyCharacterWord(const RichTextToken &word, const RichTextTables &tables, QTextCharFormat &format);

/// Applies a control word to the format of a paragraph. Returns false when the word says nothing about paragraphs.
bool applyParagraphWord(const RichTextToken &word, QTextBlockFormat &format);

/// A length of rich text (twentieths of a point) in a text document's unit, kept within what a page can hold.
qreal documentLength(int twentiethsOfAPoint);
