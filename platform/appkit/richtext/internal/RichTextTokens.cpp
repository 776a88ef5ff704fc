#include "platform/appkit/richtext/internal/RichTextTokens.h"

#include <algorithm>
#include <limits>

namespace {

using Kind = RichTextToken::Kind;

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isLineEnd(char character)
{
    return character == '\r' || character == '\n';
}

bool isSpecial(char character)
{
    return character == '\\' || character == '{' || character == '}' || isLineEnd(character);
}

int hexadecimalDigit(char character)
{
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    return -1;
}

} // namespace

RichTextTokens::RichTextTokens(QByteArrayView data) : data_(data) { }

RichTextToken RichTextTokens::next()
{
    while (position_ < data_.size() && isLineEnd(current()))
        ++position_;
    if (position_ == data_.size())
        return {};
    switch (current()) {
    case '{':
        return {Kind::GroupStart, data_.sliced(position_++, 1)};
    case '}':
        return {Kind::GroupEnd, data_.sliced(position_++, 1)};
    case '\\':
        ++position_;
        return control();
    default:
        return run();
    }
}

void RichTextTokens::skipBytes(int count)
{
    position_ += std::clamp<qsizetype>(count, 0, data_.size() - position_);
}

RichTextToken RichTextTokens::control()
{
    if (position_ == data_.size())
        return {};
    if (isLetter(current()))
        return word();
    if (current() == '\'')
        return byte();
    return {Kind::Symbol, data_.sliced(position_++, 1)};
}

RichTextToken RichTextTokens::word()
{
    const qsizetype start = position_;
    while (isLetter(current()))
        ++position_;
    RichTextToken token{Kind::Word, data_.sliced(start, position_ - start)};
    readParameter(token);
    if (current() == ' ')
        ++position_;
    return token;
}

void RichTextTokens::readParameter(RichTextToken &token)
{
    const qsizetype start = position_;
    const bool negative = current() == '-';
    if (negative)
        ++position_;
    token.hasParameter = atDigit();
    if (!token.hasParameter) {
        position_ = start;
        return;
    }
    qint64 number = 0;
    for (; atDigit(); ++position_)
        number = std::min<qint64>(number * 10 + (current() - '0'), std::numeric_limits<int>::max());
    token.parameter = int(negative ? -number : number);
}

RichTextToken RichTextTokens::byte()
{
    const qsizetype start = position_++;
    int value = 0;
    int digits = 0;
    for (; digits < 2 && hexadecimalDigit(current()) >= 0; ++digits, ++position_)
        value = value * 16 + hexadecimalDigit(current());
    if (digits < 2)
        return {Kind::Text, {}};
    return {Kind::Byte, data_.sliced(start, position_ - start), true, value};
}

RichTextToken RichTextTokens::run()
{
    const qsizetype start = position_;
    while (position_ < data_.size() && !isSpecial(current()))
        ++position_;
    return {Kind::Text, data_.sliced(start, position_ - start)};
}

bool RichTextTokens::atDigit() const
{
    return current() >= '0' && current() <= '9';
}

char RichTextTokens::current() const
{
    return position_ < data_.size() ? data_[position_] : '\0';
}
