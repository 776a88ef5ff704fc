#include "platform/appkit/richtext/internal/RichTextReader.h"

#include "platform/appkit/richtext/internal/RichTextCharacters.h"
#include "platform/appkit/richtext/internal/RichTextFormats.h"

#include <QImage>
#include <QRegularExpression>
#include <QUrl>
#include <array>

namespace {

constexpr int deepestGroup = 64;
constexpr int longestImageSide = 2048;
constexpr QChar attachmentMark(0x00AC);

QString linkOfInstruction(const QString &instruction)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*HYPERLINK\\s+(?:\"([^\"]*)\"|([^\\s\"]+))"), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(instruction);
    const QUrl address(match.captured(1) + match.captured(2), QUrl::StrictMode);
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};
    return schemes.contains(address.scheme()) ? address.toString(QUrl::FullyEncoded) : QString();
}

QSizeF imageSize(const QImage &image, int width, int height)
{
    QSizeF size(documentLength(width), documentLength(height));
    if (size.isEmpty())
        size = image.size();
    return size.expandedTo(QSizeF(1, 1)).boundedTo(QSizeF(longestImageSide, longestImageSide));
}

} // namespace

const RichTextReader::Destination *RichTextReader::destinationNamed(QByteArrayView name)
{
    struct Entry
    {
        const char *name;
        Destination destination;
    };
    static constexpr std::array<Entry, 22> entries{{
        {"fonttbl", Destination::FontTable},
        {"colortbl", Destination::ColorTable},
        {"fldinst", Destination::FieldInstruction},
        {"NeXTGraphic", Destination::Attachment},
        {"fldrslt", Destination::Body},
        {"info", Destination::LeftOut},
        {"stylesheet", Destination::LeftOut},
        {"filetbl", Destination::LeftOut},
        {"listtable", Destination::LeftOut},
        {"listoverridetable", Destination::LeftOut},
        {"revtbl", Destination::LeftOut},
        {"header", Destination::LeftOut},
        {"headerl", Destination::LeftOut},
        {"headerr", Destination::LeftOut},
        {"headerf", Destination::LeftOut},
        {"footer", Destination::LeftOut},
        {"footerl", Destination::LeftOut},
        {"footerr", Destination::LeftOut},
        {"footerf", Destination::LeftOut},
        {"footnote", Destination::LeftOut},
        {"pict", Destination::LeftOut},
        {"object", Destination::LeftOut},
    }};
    for (const Entry &entry : entries) {
        if (name == QByteArrayView(entry.name))
            return &entry.destination;
    }
    return nullptr;
}

RichTextReader::RichTextReader(QByteArrayView data, const QString &imageFolder)
    : tokens_(data), images_(imageFolder) { }

bool RichTextReader::isRichText(QByteArrayView data)
{
    return data.startsWith("{\\rtf");
}

std::unique_ptr<QTextDocument> RichTextReader::read()
{
    RichTextToken token = tokens_.next();
    do {
        readToken(token);
        token = tokens_.next();
    } while (token.kind != RichTextToken::Kind::End && !groups_.isEmpty());
    groupsTooDeep_ = 0;
    while (!groups_.isEmpty())
        endGroup();
    return builder_.finish();
}

void RichTextReader::readToken(const RichTextToken &token)
{
    if (token.kind == RichTextToken::Kind::GroupStart)
        return startGroup();
    if (token.kind == RichTextToken::Kind::GroupEnd)
        return endGroup();
    if (token.kind == RichTextToken::Kind::Word && token.text == "bin")
        tokens_.skipBytes(token.parameter);
    if (groupsTooDeep_ > 0 || groups_.isEmpty() || isFallback(token))
        return;
    if (token.kind == RichTextToken::Kind::Word)
        return readWord(token);
    if (token.kind == RichTextToken::Kind::Symbol)
        return readSymbol(token);
    if (token.kind == RichTextToken::Kind::Byte) {
        const char byte = char(token.parameter);
        return readBytes(QByteArrayView(&byte, 1));
    }
    const qsizetype fallback = std::min<qsizetype>(fallbackLeft_, token.text.size());
    fallbackLeft_ -= int(fallback);
    readBytes(token.text.sliced(fallback));
}

void RichTextReader::startGroup()
{
    fallbackLeft_ = 0;
    if (groups_.size() >= deepestGroup) {
        ++groupsTooDeep_;
        return;
    }
    groups_.push(groups_.isEmpty() ? Group() : groups_.top());
    groups_.top().nextWordMayBeUnknown = false;
}

void RichTextReader::endGroup()
{
    fallbackLeft_ = 0;
    if (groupsTooDeep_ > 0) {
        --groupsTooDeep_;
        return;
    }
    if (groups_.isEmpty())
        return;
    const Destination ended = groups_.pop().destination;
    if (!groups_.isEmpty() && groups_.top().destination != ended)
        endDestination(ended);
}

void RichTextReader::endDestination(Destination destination)
{
    if (destination == Destination::FieldInstruction)
        groups_.top().link = linkOfInstruction(std::exchange(fieldInstruction_, {}));
    else if (destination == Destination::Attachment)
        insertAttachment();
}

void RichTextReader::readWord(const RichTextToken &word)
{
    const bool mayBeUnknown = std::exchange(groups_.top().nextWordMayBeUnknown, false);
    if (groups_.top().destination == Destination::LeftOut || readDestination(word))
        return;
    if (mayBeUnknown)
        groups_.top().destination = Destination::LeftOut;
    else if (word.text == "u")
        readNumberedCharacter(word);
    else if (word.text == "uc")
        groups_.top().fallbackLength = std::max(word.parameter, 0);
    else
        readWordOfDestination(word);
}

bool RichTextReader::readDestination(const RichTextToken &word)
{
    const Destination *destination = destinationNamed(word.text);
    // The text as a whole is no place for a table, an instruction or an attachment: they would swallow the rest.
    if (!destination || groups_.size() < 2)
        return destination != nullptr;
    groups_.top().destination = *destination;
    return true;
}

void RichTextReader::readWordOfDestination(const RichTextToken &word)
{
    switch (groups_.top().destination) {
    case Destination::FontTable:
        return tables_.readFontWord(word);
    case Destination::ColorTable:
        return tables_.readColorWord(word);
    case Destination::Attachment:
        return readAttachmentWord(word);
    case Destination::Body:
        return readBodyWord(word);
    case Destination::FieldInstruction:
    case Destination::LeftOut:
        return;
    }
}

void RichTextReader::readAttachmentWord(const RichTextToken &word)
{
    if (word.text == "width")
        attachment_.width = word.parameter;
    else if (word.text == "height")
        attachment_.height = word.parameter;
}

void RichTextReader::readBodyWord(const RichTextToken &word)
{
    Group &group = groups_.top();
    if (word.text == "par" || word.text == "sect" || word.text == "page")
        builder_.endParagraph(characterFormat(), group.paragraph);
    else if (const QChar character = namedCharacter(word.text); !character.isNull())
        readText(character);
    else if (!applyCharacterWord(word, tables_, group.characters))
        applyParagraphWord(word, group.paragraph);
}

void RichTextReader::readSymbol(const RichTextToken &symbol)
{
    Group &group = groups_.top();
    const char character = symbol.text.front();
    if (character == '*')
        group.nextWordMayBeUnknown = true;
    else if ((character == '\n' || character == '\r') && group.destination == Destination::Body)
        builder_.endParagraph(characterFormat(), group.paragraph);
    else if (const QChar named = namedCharacter(symbol.text); !named.isNull())
        readText(named);
}

void RichTextReader::readNumberedCharacter(const RichTextToken &word)
{
    if (!word.hasParameter)
        return;
    readText(QChar(char16_t(word.parameter)));
    fallbackLeft_ = groups_.top().fallbackLength;
}

bool RichTextReader::isFallback(const RichTextToken &token)
{
    if (fallbackLeft_ == 0 || token.kind == RichTextToken::Kind::Text)
        return false;
    --fallbackLeft_;
    return true;
}

void RichTextReader::readBytes(QByteArrayView bytes)
{
    readText(textFromCodePage1252(bytes));
}

void RichTextReader::readText(const QString &text)
{
    switch (groups_.top().destination) {
    case Destination::FontTable:
        return tables_.readFontText(text);
    case Destination::ColorTable:
        return tables_.readColorText(text);
    case Destination::FieldInstruction:
        fieldInstruction_ += text;
        return;
    case Destination::Attachment:
        attachment_.fileName += text;
        return;
    case Destination::Body:
        return readBodyText(text);
    case Destination::LeftOut:
        return;
    }
}

void RichTextReader::readBodyText(QString text)
{
    if (!text.isEmpty() && std::exchange(attachmentMarkFollows_, false) && text.startsWith(attachmentMark))
        text.remove(0, 1);
    builder_.appendText(text, characterFormat(), groups_.top().paragraph);
}

void RichTextReader::insertAttachment()
{
    const Attachment attachment = std::exchange(attachment_, {});
    attachmentMarkFollows_ = true;
    const QImage image = images_.load(attachment.fileName.trimmed());
    if (image.isNull())
        return;
    const QSizeF size = imageSize(image, attachment.width, attachment.height);
    builder_.appendImage(image, size, characterFormat(), groups_.top().paragraph);
}

QTextCharFormat RichTextReader::characterFormat() const
{
    const Group &group = groups_.top();
    QTextCharFormat format = group.characters;
    if (!group.link.isEmpty()) {
        format.setAnchor(true);
        format.setAnchorHref(group.link);
        format.setFontUnderline(true);
    }
    return format;
}
