#pragma once

#include <QObject>
#include <QStringList>
#include <QUrl>

class QHelpSearchEngine;

/// A page that has all words looked for.
struct FoundPage
{
    QString title;
    QString excerpt;
    QUrl address;
};

/// Looks for words in a book. What is asked before the book is indexed is answered once it is.
class HelpSearch : public QObject
{
    Q_OBJECT

public:
    HelpSearch(QHelpSearchEngine *engine, QObject *parent);

    /// Looks for the pages that have each of these words, or words that begin with them.
    void lookFor(const QStringList &words);
    /// The words of what a user has typed.
    static QStringList wordsIn(const QString &text);

Q_SIGNALS:
    /// The answer to what was asked last.
    void found(const QList<FoundPage> &pages);

private:
    void ask();
    void takeAnswer();

    QHelpSearchEngine *engine_;
    QString query_;
    bool isIndexed_ = false;
};
