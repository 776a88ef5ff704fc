#pragma once

#include "platform/appkit/richtext/internal/RichTextBuilder.h"
#include "platform/appkit/richtext/internal/RichTextImages.h"
#include "platform/appkit/richtext/internal/RichTextTables.h"
#include "platform/appkit/richtext/internal/RichTextTokens.h"

#include <QStack>

/// Reads rich text into a text document.
///
/// What is not understood is left out, what is deeper than 64 groups too; text that ends early or closes too much gives
/// what was read until then. Text without a colour, font or size of its own has none in the document either, so that it
/// follows the view that shows it.
class RichTextReader
{
public:
    /// `data` must outlive the reader. Images come from `imageFolder` alone.
    RichTextReader(QByteArrayView data, const QString &imageFolder);

    /// Reads everything, once.
    std::unique_ptr<QTextDocument> read();

    /// Whether data claims to be rich text at all.
    static bool isRichText(QByteArrayView data);

private:
    enum class Destination { Body, FontTable, ColorTable, FieldInstruction, Attachment, LeftOut };

    struct Group
    {
        Destination destination = Destination::Body;
        bool nextWordMayBeUnknown = false;
        int fallbackLength = 1; ///< how many characters stand in for one that is given by its number
        QTextCharFormat characters;
        QTextBlockFormat paragraph;
        QString link;
    };

    struct Attachment
    {
        QString fileName;
        int width = 0;
        int height = 0;
    };

    void readToken(const RichTextToken &token);
    void startGroup();
    void endGroup();
    void endDestination(Destination destination);
    void readWord(const RichTextToken &word);
    bool readDestination(const RichTextToken &word);
    void readWordOfDestination(const RichTextToken &word);
    void readAttachmentWord(const RichTextToken &word);
    void readBodyWord(const RichTextToken &word);
    void readSymbol(const RichTextToken &symbol);
    void readNumberedCharacter(const RichTextToken &word);
    bool isFallback(const RichTextToken &token);
    void readBytes(QByteArrayView bytes);
    void readText(const QString &text);
    void readBodyText(QString text);
    void insertAttachment();
    QTextCharFormat characterFormat() const;
    static const Destination *destinationNamed(QByteArrayView name);

    RichTextTokens tokens_;
    RichTextTables tables_;
    RichTextImages images_;
    RichTextBuilder builder_;
    QStack<Group> groups_;
    int groupsTooDeep_ = 0;
    int fallbackLeft_ = 0;
    QString fieldInstruction_;
    Attachment attachment_;
    bool attachmentMarkFollows_ = false;
};
