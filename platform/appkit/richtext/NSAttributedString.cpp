#include "platform/appkit/richtext/NSAttributedString.h"

#include "platform/appkit/richtext/internal/RichTextReader.h"
#include "platform/foundation/system/NSLog.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr qint64 largestText = qint64(1024) * 1024;

QByteArray readBounded(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(largestText + 1);
}

QList<qsizetype> occurrences(const QString &text, const QString &target)
{
    QList<qsizetype> places;
    for (qsizetype place = text.indexOf(target); place >= 0; place = text.indexOf(target, place + target.size()))
        places += place;
    return places;
}

void replaceRange(QTextDocument &document, qsizetype place, qsizetype length, const QString &replacement)
{
    QTextCursor cursor(&document);
    cursor.setPosition(int(place) + 1);
    const QTextCharFormat format = cursor.charFormat();
    cursor.setPosition(int(place));
    cursor.setPosition(int(place + length), QTextCursor::KeepAnchor);
    cursor.insertText(replacement, format);
}

} // namespace

NSAttributedString::NSAttributedString() : document_(std::make_shared<QTextDocument>()) { }

NSAttributedString NSAttributedString::fromRTFDDocument(const QString &path)
{
    return fromRTF(readBounded(path + QStringLiteral("/TXT.rtf")), path);
}

NSAttributedString NSAttributedString::fromRTF(const QByteArray &data, const QString &imageFolder)
{
    NSAttributedString text;
    if (data.size() > largestText)
        NSLog(QStringLiteral("lumaroo: a rich text in \"%1\" is larger than 1 MiB; not shown").arg(imageFolder));
    else if (RichTextReader::isRichText(data))
        text.document_ = RichTextReader(data, imageFolder).read();
    return text;
}

bool NSAttributedString::isEmpty() const
{
    return document_->isEmpty();
}

QString NSAttributedString::string() const
{
    return document_->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void NSAttributedString::replaceOccurrencesOfStringWithString(const QString &target, const QString &replacement)
{
    const QList<qsizetype> places = target.isEmpty() ? QList<qsizetype>() : occurrences(string(), target);
    if (places.isEmpty())
        return;
    document_ = document();
    QTextCursor(document_.get()).beginEditBlock();
    // From the end, so that the places before stay where they are.
    for (auto place = places.crbegin(); place != places.crend(); ++place)
        replaceRange(*document_, *place, target.size(), replacement);
    QTextCursor(document_.get()).endEditBlock();
}

std::unique_ptr<QTextDocument> NSAttributedString::document() const
{
    return std::unique_ptr<QTextDocument>(document_->clone());
}
