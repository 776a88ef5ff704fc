#pragma once

#include "platform/appkit/help/internal/HelpBook.h"

#include <QTemporaryDir>
#include <memory>

/// The folder in which a book's collection and search index lie: one for each book, version, language and help file in
/// the user's cache, or a temporary one where that cannot be written.
class HelpCache
{
public:
    /// The cache's folder, made where it is missing; those of the book's other versions go. What is torn in it goes,
    /// too.
    explicit HelpCache(const HelpBook &book);
    /// A temporary folder, removed with the object.
    HelpCache();

    /// Whether files can be made here.
    bool isWritable() const;
    QString collectionFile() const { return folder_ + QStringLiteral("/Help.qhc"); }
    /// Makes the folder empty.
    void clear();

private:
    std::unique_ptr<QTemporaryDir> temporary_;
    QString folder_;
};
