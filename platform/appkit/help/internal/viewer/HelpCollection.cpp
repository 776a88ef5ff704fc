#include "platform/appkit/help/internal/viewer/HelpCollection.h"

#include "platform/appkit/help/internal/viewer/Database.h"

#include <QHelpContentModel>
#include <QHelpLink>
#include <QHelpSearchEngine>

HelpCollection::HelpCollection(const HelpBook &book, std::unique_ptr<HelpCache> cache)
    : book_(book), cache_(std::move(cache)), engine_(std::make_unique<QHelpEngine>(cache_->collectionFile())),
      namespace_(QHelpEngineCore::namespaceName(book.file))
{
    engine_->setReadOnly(false);
    engine_->setUsesFilterEngine(true);
}

bool HelpCollection::setUp()
{
    if (!engine_->setupData())
        return false;
    const bool isRegistered = engine_->documentationFileName(namespace_) == book_.file;
    if (!isRegistered)
        engine_->unregisterDocumentation(namespace_);
    if (!isRegistered && !engine_->registerDocumentation(book_.file))
        return false;
    files_ = engine_->files(namespace_, QString());
    return !files_.isEmpty();
}

std::unique_ptr<HelpCollection> HelpCollection::openWith(
    const HelpBook &book, std::unique_ptr<HelpCache> cache, QString *problem)
{
    std::unique_ptr<HelpCollection> collection(new HelpCollection(book, std::move(cache)));
    if (collection->setUp())
        return collection;
    *problem = collection->error();
    return nullptr;
}

std::unique_ptr<HelpCollection> HelpCollection::open(const HelpBook &book, QString *problem)
{
    if (book.file.isEmpty()) {
        *problem = QStringLiteral("no registered bundle has it");
        return nullptr;
    }
    if (!isWholeDatabase(book.file)) {
        *problem = QStringLiteral("%1 is damaged").arg(book.file);
        return nullptr;
    }
    for (const bool isFresh : {false, true}) {
        auto cache = std::make_unique<HelpCache>(book);
        if (!cache->isWritable())
            break;
        if (isFresh)
            cache->clear();
        if (auto collection = openWith(book, std::move(cache), problem))
            return collection;
    }
    return openWith(book, std::make_unique<HelpCache>(), problem);
}

QUrl HelpCollection::placeOfAnchor(const QString &anchor) const
{
    for (const QHelpLink &link : engine_->documentsForIdentifier(anchor)) {
        if (hasFile(link.url))
            return link.url;
    }
    return firstPage();
}

QUrl HelpCollection::firstPage() const
{
    const QUrl index = QStringLiteral("qthelp://%1/lumaroo/index.html").arg(namespace_);
    return hasFile(index) || files_.isEmpty() ? index : files_.constFirst();
}

bool HelpCollection::hasFile(const QUrl &address) const
{
    return files_.contains(address.adjusted(QUrl::RemoveFragment));
}
