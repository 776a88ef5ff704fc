#include "platform/appkit/help/internal/viewer/HelpPage.h"

#include "platform/appkit/help/internal/viewer/HelpCollection.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

namespace {

constexpr int smallestZoom = 60;
constexpr int largestZoom = 300;
constexpr int narrowestMargin = 24;
constexpr int widestColumnInLetters = 100;
constexpr int naturalWidth = QTextFormat::UserProperty;

/// What every book looks like. Colours come from the palette, and sizes from the theme's text.
QString pageStyle(const QPalette &palette)
{
    const QString quiet = palette.color(QPalette::Disabled, QPalette::Text).name();
    return QStringLiteral("h1 { font-size: xx-large; margin-top: 18px; margin-bottom: 12px; }"
                          "h2 { font-size: x-large; margin-top: 24px; margin-bottom: 8px; }"
                          "h3 { font-size: large; margin-top: 18px; margin-bottom: 6px; }"
                          "p, dd, dl { margin-top: 0px; margin-bottom: 10px; }"
                          "table { margin-top: 4px; margin-bottom: 14px; }"
                          "ul, ol { margin-top: 0px; margin-bottom: 10px; }"
                          "li { margin-top: 0px; margin-bottom: 5px; }"
                          "p, li, dd, dt { line-height: 125%; }"
                          "a { color: %1; }"
                          "pre { background-color: %3; margin-top: 4px; margin-bottom: 12px; }"
                          "pre, code, tt { font-family: monospace; }"
                          ".detail { color: %2; }")
        .arg(palette.color(QPalette::Link).name(), quiet, palette.color(QPalette::AlternateBase).name());
}

QColor markColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::Highlight);
    color.setAlphaF(0.35F);
    return color;
}

} // namespace

HelpPage::HelpPage(QWidget *parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("helpPage"));
    setFrameShape(QFrame::NoFrame);
    // The margins beside the column belong to the page.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setLooks();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpPage::takeChange);
}

void HelpPage::takeChange(const QUrl &place)
{
    marks_.clear();
    setExtraSelections({});
    setColumn();
    Q_EMIT pageChanged(place);
}

void HelpPage::setBook(const HelpCollection *book)
{
    book_ = book;
    isFirstPage_ = true;
    message_.clear();
    clear();
}

void HelpPage::setMessage(const QString &title, const QString &text, const QString &detail)
{
    setBook(nullptr);
    message_ = QStringLiteral("<title>%1</title><h1>%1</h1><p>%2</p><p class=\"detail\">%3</p>")
                   .arg(title.toHtmlEscaped(), text.toHtmlEscaped(), detail.toHtmlEscaped());
    setHtml(message_);
    setColumn();
    Q_EMIT pageChanged(QUrl());
}

QVariant HelpPage::loadResource(int, const QUrl &address)
{
    return book_ && book_->hasFile(address) ? QVariant(book_->file(address)) : QVariant(QByteArray());
}

void HelpPage::doSetSource(const QUrl &address, QTextDocument::ResourceType type)
{
    const QUrl whole = source().resolved(address);
    if (book_ && book_->hasFile(whole))
        showFile(whole, type);
    else if (whole.scheme() == QLatin1StringView("http") || whole.scheme() == QLatin1StringView("https"))
        Q_EMIT webPageWanted(whole);
}

void HelpPage::showFile(const QUrl &address, QTextDocument::ResourceType type)
{
    const bool isTakenForShown = source().matches(address, QUrl::RemoveFragment);
    QTextBrowser::doSetSource(address, type);
    if (!std::exchange(isFirstPage_, false))
        return;
    // The one before was another book's, perhaps with a page of the same name.
    if (isTakenForShown)
        reload();
    clearHistory();
}

void HelpPage::setZoom(int percent)
{
    const int zoom = qBound(smallestZoom, percent, largestZoom);
    if (zoom == zoom_)
        return;
    zoom_ = zoom;
    redraw();
}

void HelpPage::setLooks()
{
    QFont text = font();
    text.setPointSizeF(text.pointSizeF() * zoom_ / 100);
    document()->setDefaultFont(text);
    document()->setDefaultStyleSheet(pageStyle(palette()));
}

void HelpPage::redraw()
{
    const QScrollBar *bar = verticalScrollBar();
    const double place = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    setLooks();
    // A page takes its colours when it is read.
    if (!message_.isEmpty())
        setHtml(message_);
    else if (!source().isEmpty())
        reload();
    setColumn();
    verticalScrollBar()->setValue(qRound(place * verticalScrollBar()->maximum()));
}

void HelpPage::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        redraw();
}

void HelpPage::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    setColumn();
}

void HelpPage::setColumn()
{
    const QFontMetrics letters(document()->defaultFont());
    const int widest = letters.averageCharWidth() * widestColumnInLetters;
    const int margin = qMax(narrowestMargin, (viewport()->width() - widest) / 2);
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    format.setLeftMargin(margin);
    format.setRightMargin(margin);
    format.setBottomMargin(narrowestMargin);
    if (format != document()->rootFrame()->frameFormat())
        document()->rootFrame()->setFrameFormat(format);
    fitPictures(viewport()->width() - 2 * margin - 2 * int(document()->documentMargin()));
}

void HelpPage::fitPictures(int room)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().isImageFormat())
                fitPicture(part.fragment(), room);
        }
    }
}

void HelpPage::fitPicture(const QTextFragment &place, int room)
{
    QTextImageFormat format = place.charFormat().toImageFormat();
    const double natural = format.hasProperty(naturalWidth) ? format.doubleProperty(naturalWidth) : widthOf(format);
    const double width = qMin<double>(room, natural * zoom_ / 100);
    if (natural <= 0 || qFuzzyCompare(format.width(), width))
        return;
    QTextCursor picture(document());
    picture.setPosition(place.position());
    // The room between lines of text is none below a picture.
    QTextBlockFormat line;
    line.setLineHeight(0, QTextBlockFormat::SingleHeight);
    picture.mergeBlockFormat(line);
    format.setProperty(naturalWidth, natural);
    format.setWidth(width);
    // Its height follows.
    format.clearProperty(QTextFormat::ImageHeight);
    picture.setPosition(place.position() + place.length(), QTextCursor::KeepAnchor);
    picture.setCharFormat(format);
}

double HelpPage::widthOf(const QTextImageFormat &format) const
{
    if (format.width() > 0)
        return format.width();
    return QImage::fromData(book_ ? book_->file(document()->baseUrl().resolved(QUrl(format.name()))) : QByteArray())
        .width();
}

void HelpPage::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QTextBrowser::wheelEvent(event);
    if (event->angleDelta().y() > 0)
        zoomInOneStep();
    else if (event->angleDelta().y() < 0)
        zoomOutOneStep();
    event->accept();
}

void HelpPage::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::BackButton)
        backward();
    else if (event->button() == Qt::ForwardButton)
        forward();
    else
        QTextBrowser::mousePressEvent(event);
}

void HelpPage::markWords(const QStringList &words)
{
    marks_.clear();
    QList<QTextEdit::ExtraSelection> selections;
    for (const QString &word : words) {
        QTextCursor place(document());
        while (!(place = document()->find(word, place)).isNull()) {
            marks_ += place;
            QTextEdit::ExtraSelection selection;
            selection.cursor = place;
            selection.format.setBackground(markColor(palette()));
            selections += selection;
        }
    }
    std::sort(marks_.begin(), marks_.end());
    setExtraSelections(selections);
    mark_ = -1;
    goToMark(false);
}

void HelpPage::goToMark(bool backward)
{
    if (marks_.isEmpty())
        return;
    mark_ = (mark_ + (backward ? -1 : 1) + marks_.size()) % marks_.size();
    setTextCursor(marks_[mark_]);
    ensureCursorVisible();
}
