#pragma once

#include "platform/appkit/help/internal/HelpBook.h"
#include "platform/appkit/help/internal/viewer/HelpCache.h"

#include <QHelpEngine>
#include <QUrl>
#include <memory>

/// An open help book: its files, contents and search.
class HelpCollection
{
public:
    /// Opens a book, with its collection and search index from the cache, or anew where they are missing or torn. Null,
    /// with the cause in English, when the book is missing or torn.
    static std::unique_ptr<HelpCollection> open(const HelpBook &book, QString *problem);

    const HelpBook &book() const { return book_; }
    QHelpContentModel *contents() const { return engine_->contentModel(); }
    QHelpSearchEngine *search() const { return engine_->searchEngine(); }

    /// The place of an anchor; the first page where there is no such anchor.
    QUrl placeOfAnchor(const QString &anchor) const;
    QUrl firstPage() const;
    /// Whether an address is that of a file of the book.
    bool hasFile(const QUrl &address) const;
    /// A file of the book; empty where there is none.
    QByteArray file(const QUrl &address) const { return engine_->fileData(address); }

private:
    HelpCollection(const HelpBook &book, std::unique_ptr<HelpCache> cache);
    bool setUp();
    QString error() const { return engine_->error(); }
    static std::unique_ptr<HelpCollection> openWith(
        const HelpBook &book, std::unique_ptr<HelpCache> cache, QString *problem);

    HelpBook book_;
    std::unique_ptr<HelpCache> cache_; // goes last: the engine's files lie there
    std::unique_ptr<QHelpEngine> engine_;
    QString namespace_;
    QList<QUrl> files_;
};
