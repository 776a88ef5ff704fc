#include "platform/appkit/richtext/internal/RichTextBuilder.h"

#include "platform/appkit/richtext/internal/RichTextCharacters.h"

#include <QGuiApplication>
#include <QImage>
#include <QUrl>

namespace {

// Text documents draw images without smoothing, so they are brought to their size on the screen beforehand.
QImage scaledForScreens(const QImage &image, const QSizeF &size)
{
    const qreal ratio = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    QImage scaled = image.scaled((size * ratio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

} // namespace

RichTextBuilder::RichTextBuilder() : document_(std::make_unique<QTextDocument>()), cursor_(document_.get())
{
    document_->setUndoRedoEnabled(false);
    cursor_.beginEditBlock();
}

RichTextBuilder::~RichTextBuilder() = default;

void RichTextBuilder::appendText(const QString &text, const QTextCharFormat &format, const QTextBlockFormat &paragraph)
{
    if (text.isEmpty())
        return;
    enterParagraph(format, paragraph);
    if (format != textFormat_)
        flushText();
    textFormat_ = format;
    text_ += text;
}

void RichTextBuilder::appendImage(
    const QImage &image, const QSizeF &size, const QTextCharFormat &format, const QTextBlockFormat &paragraph)
{
    enterParagraph(format, paragraph);
    flushText();
    const QString name = QStringLiteral("attachment:%1").arg(++images_);
    document_->addResource(QTextDocument::ImageResource, QUrl(name), scaledForScreens(image, size));
    QTextImageFormat imageFormat;
    imageFormat.merge(format);
    imageFormat.setName(name);
    imageFormat.setWidth(size.width());
    imageFormat.setHeight(size.height());
    cursor_.insertImage(imageFormat);
}

void RichTextBuilder::endParagraph(const QTextCharFormat &format, const QTextBlockFormat &paragraph)
{
    enterParagraph(format, paragraph);
    paragraphHasEnded_ = true;
}

std::unique_ptr<QTextDocument> RichTextBuilder::finish()
{
    flushText();
    cursor_.endEditBlock();
    cursor_ = QTextCursor();
    return std::move(document_);
}

void RichTextBuilder::flushText()
{
    if (!text_.isEmpty())
        cursor_.insertText(withoutForeignCharacters(text_), textFormat_);
    text_.clear();
}

void RichTextBuilder::enterParagraph(const QTextCharFormat &format, const QTextBlockFormat &paragraph)
{
    if (paragraphHasEnded_) {
        flushText();
        cursor_.insertBlock(paragraph, format);
        paragraphHasEnded_ = false;
    } else if (cursor_.blockFormat() != paragraph) {
        cursor_.setBlockFormat(paragraph);
    }
}
