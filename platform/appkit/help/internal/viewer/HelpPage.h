#pragma once

#include <QTextBrowser>
#include <functional>

class HelpCollection;
class QTextFragment;
class QTextImageFormat;

/// Shows the pages of a help book in the colours of the user's theme, in a column of a readable width. Nothing but the
/// book's own files is ever loaded: neither page nor picture.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpPage(QWidget *parent);

    /// The book whose pages it shows from now on; null for none, which leaves what setMessage() tells.
    void setBook(const HelpCollection *book);
    /// Shows a few words instead of a book.
    void setMessage(const QString &title, const QString &text, const QString &detail);

    /// In percent of the theme's size of text, within what can be read.
    void setZoom(int percent);
    int zoom() const { return zoom_; }
    void zoomInOneStep() { setZoom(zoom_ + zoomStep); }
    void zoomOutOneStep() { setZoom(zoom_ - zoomStep); }

    /// Marks every occurrence of these words, and comes to the first one.
    void markWords(const QStringList &words);
    /// Comes to the next marked place, or back to the one before; at the end it begins anew.
    void goToMark(bool backward);

    QVariant loadResource(int type, const QUrl &address) override;

Q_SIGNALS:
    /// Another place is shown; an empty address for a message.
    void pageChanged(const QUrl &place);
    /// A link leads to a web page.
    void webPageWanted(const QUrl &address);

protected:
    void doSetSource(const QUrl &address, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void takeChange(const QUrl &place);
    void showFile(const QUrl &address, QTextDocument::ResourceType type);
    void setLooks();
    void redraw();
    void setColumn();
    void fitPictures(int room);
    void fitPicture(const QTextFragment &place, int room);
    double widthOf(const QTextImageFormat &format) const;

    static constexpr int zoomStep = 10;

    const HelpCollection *book_ = nullptr;
    bool isFirstPage_ = true;
    QString message_;
    QList<QTextCursor> marks_;
    qsizetype mark_ = 0;
    int zoom_ = 100;
};
