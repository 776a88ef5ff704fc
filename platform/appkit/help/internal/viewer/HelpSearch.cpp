#include "platform/appkit/help/internal/viewer/HelpSearch.h"

#include <QHelpSearchEngine>
#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace {

constexpr int mostPages = 100;

QString queryFor(const QStringList &words)
{
    QStringList terms;
    for (const QString &word : words)
        terms += u'"' + word + QStringLiteral("\"*");
    return terms.join(u' ');
}

} // namespace

HelpSearch::HelpSearch(QHelpSearchEngine *engine, QObject *parent) : QObject(parent), engine_(engine)
{
    connect(engine, &QHelpSearchEngine::searchingFinished, this, &HelpSearch::takeAnswer);
    connect(engine, &QHelpSearchEngine::indexingFinished, this, [this] {
        isIndexed_ = true;
        ask();
    });
    engine->scheduleIndexDocumentation();
}

QStringList HelpSearch::wordsIn(const QString &text)
{
    static const QRegularExpression others(QStringLiteral("[^\\p{L}\\p{N}]+"));
    return text.split(others, Qt::SkipEmptyParts);
}

void HelpSearch::lookFor(const QStringList &words)
{
    query_ = queryFor(words);
    ask();
}

void HelpSearch::ask()
{
    if (isIndexed_ && !query_.isEmpty())
        engine_->search(query_);
}

void HelpSearch::takeAnswer()
{
    if (engine_->searchInput() != query_)
        return;
    QList<FoundPage> pages;
    for (const QHelpSearchResult &result : engine_->searchResults(0, mostPages)) {
        const QString excerpt = QTextDocumentFragment::fromHtml(result.snippet()).toPlainText().simplified();
        pages += {result.title(), excerpt, result.url()};
    }
    Q_EMIT found(pages);
}
