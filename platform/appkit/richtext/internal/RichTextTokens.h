#pragma once

#include <QByteArrayView>

/// One element of rich text.
struct RichTextToken
{
    enum class Kind {
        End,
        GroupStart,
        GroupEnd,
        Word, ///< a control word: letters, and a parameter that may be missing
        Symbol, ///< a control symbol: the one character in `text`
        Byte, ///< a byte written in hexadecimal
        Text, ///< a run of plain characters, line ends left out
    };

    Kind kind = Kind::End;
    QByteArrayView text; ///< the word's letters, the symbol's character or the run
    bool hasParameter = false;
    int parameter = 0; ///< the word's number, kept within 32 bits, or the byte
};

/// Takes rich text apart. Reads whatever bytes it is given; `data` must outlive it.
class RichTextTokens
{
public:
    explicit RichTextTokens(QByteArrayView data);

    RichTextToken next();
    /// Passes over binary data that follows a word.
    void skipBytes(int count);

private:
    RichTextToken control();
    RichTextToken word();
    RichTextToken byte();
    RichTextToken run();
    void readParameter(RichTextToken &token);
    bool atDigit() const;
    char current() const;

    QByteArrayView data_;
    qsizetype position_ = 0;
};
