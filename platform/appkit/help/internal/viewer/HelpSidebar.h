#pragma once

#include "platform/appkit/help/internal/viewer/HelpSearch.h"

#include <QStackedWidget>

class HelpCollection;
class QLabel;
class QListWidget;
class QTreeView;

/// Beside the page: the table of contents or, while something is looked for, the pages that have it.
class HelpSidebar : public QStackedWidget
{
    Q_OBJECT

public:
    explicit HelpSidebar(QWidget *parent);

    /// The book whose contents it shows from now on; null for none. It is forgotten before the book goes.
    void setBook(const HelpCollection *book);
    /// Shows the pages that have these words; the table of contents for none.
    void lookFor(const QStringList &words);
    /// Marks a page in the table of contents.
    void setCurrentPlace(const QUrl &address);
    /// The book's title; empty until the contents are read.
    QString bookTitle() const;
    void focusList();

Q_SIGNALS:
    /// The user has chosen a place to read.
    void placeChosen(const QUrl &address);
    void contentsRead();

private:
    QWidget *makeResults();
    void showFound(const QList<FoundPage> &pages);
    void takeContents();
    void chooseContent(const QModelIndex &index);

    const HelpCollection *book_ = nullptr;
    QTreeView *contents_;
    QLabel *resultsTitle_ = nullptr;
    QListWidget *results_ = nullptr;
    HelpSearch *search_ = nullptr;
    QUrl place_;
};
