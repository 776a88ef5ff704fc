#pragma once

#include "platform/appkit/Export.h"

#include <QString>
#include <memory>

class QTextDocument;

/// Text with fonts, colours, paragraphs, links and attached images, as a credits page uses it.
class LM_APPKIT NSAttributedString
{
public:
    NSAttributedString();

    /// Reads an "rtfd" document: a folder with TXT.rtf and the images it names. Empty when it is missing or no rich
    /// text.
    static NSAttributedString fromRTFDDocument(const QString &path);
    /// Reads rich text as a flat file holds it; images are looked up in `imageFolder`. Bounded in size (1 MiB), depth
    /// and images; never throws.
    static NSAttributedString fromRTF(const QByteArray &data, const QString &imageFolder = {});

    bool isEmpty() const;
    QString string() const;
    /// Replaces every occurrence of a text; what replaces it takes the attributes of the first character replaced.
    void replaceOccurrencesOfStringWithString(const QString &target, const QString &replacement);

    /// The text as a document; a copy of its own for each caller, who owns it.
    std::unique_ptr<QTextDocument> document() const;

private:
    std::shared_ptr<QTextDocument> document_;
};
