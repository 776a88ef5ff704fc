#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

class QImage;

/// Puts a text document together from its start to its end.
class RichTextBuilder
{
public:
    RichTextBuilder();
    ~RichTextBuilder();

    void appendText(const QString &text, const QTextCharFormat &format, const QTextBlockFormat &paragraph);
    /// An image in the line, `size` large in the document's unit.
    void appendImage(
        const QImage &image, const QSizeF &size, const QTextCharFormat &format, const QTextBlockFormat &paragraph);
    /// Ends the paragraph, which takes this format. The end of the last paragraph starts no other.
    void endParagraph(const QTextCharFormat &format, const QTextBlockFormat &paragraph);

    /// The document, which is the builder's no more.
    std::unique_ptr<QTextDocument> finish();

private:
    void flushText();
    void enterParagraph(const QTextCharFormat &format, const QTextBlockFormat &paragraph);

    std::unique_ptr<QTextDocument> document_;
    QTextCursor cursor_;
    bool paragraphHasEnded_ = false;
    int images_ = 0;
    QString text_; ///< not yet in the document
    QTextCharFormat textFormat_;
};
