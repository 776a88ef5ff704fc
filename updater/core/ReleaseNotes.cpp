#include "updater/core/ReleaseNotes.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QUrl>

namespace {

constexpr qsizetype deepest = 16;

/// What each element becomes; others are left out, and their text stays.
const QHash<QString, QString> &elements()
{
    static const QHash<QString, QString> kept{
        {QStringLiteral("h1"), QStringLiteral("h3")},
        {QStringLiteral("h2"), QStringLiteral("h3")},
        {QStringLiteral("h3"), QStringLiteral("h4")},
        {QStringLiteral("h4"), QStringLiteral("h4")},
        {QStringLiteral("h5"), QStringLiteral("h4")},
        {QStringLiteral("h6"), QStringLiteral("h4")},
        {QStringLiteral("p"), QStringLiteral("p")},
        {QStringLiteral("div"), QStringLiteral("p")},
        {QStringLiteral("tr"), QStringLiteral("p")},
        {QStringLiteral("ul"), QStringLiteral("ul")},
        {QStringLiteral("ol"), QStringLiteral("ol")},
        {QStringLiteral("li"), QStringLiteral("li")},
        {QStringLiteral("b"), QStringLiteral("b")},
        {QStringLiteral("strong"), QStringLiteral("b")},
        {QStringLiteral("i"), QStringLiteral("i")},
        {QStringLiteral("em"), QStringLiteral("i")},
        {QStringLiteral("code"), QStringLiteral("code")},
        {QStringLiteral("pre"), QStringLiteral("pre")},
        {QStringLiteral("a"), QStringLiteral("a")},
    };
    return kept;
}

/// Of these nothing stays, what they hold included.
bool isDropped(const QString &name)
{
    static const QSet<QString> dropped{QStringLiteral("head"), QStringLiteral("title"), QStringLiteral("style"),
        QStringLiteral("script"), QStringLiteral("template"), QStringLiteral("noscript"), QStringLiteral("iframe"),
        QStringLiteral("object"), QStringLiteral("svg"), QStringLiteral("math"), QStringLiteral("textarea")};
    return dropped.contains(name);
}

/// Of a link that may be followed.
QString webAddressIn(const QString &tag)
{
    static const QRegularExpression reference(
        QStringLiteral("\\shref\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>]+))"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = reference.match(tag);
    const QString text =
        match.captured(match.lastCapturedIndex()).replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    const QUrl address(match.hasMatch() ? text : QString(), QUrl::StrictMode);
    const bool isWebPage = address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
    return isWebPage && !address.host().isEmpty() ? QString::fromLatin1(address.toEncoded()) : QString();
}

/// Copies what may stay, from one tag to the next.
class NotesReader
{
public:
    explicit NotesReader(const QString &html) : html_(html) { }
    QString read();

private:
    void takeTag();
    void takeElement(const QString &tag);
    void skipComment();
    qsizetype endOfTag() const;
    void dropElement(const QString &name);
    void open(const QString &element, const QString &tag);
    void close(QString element);

    const QString html_;
    qsizetype place_ = 0;
    QString safe_;
    QStringList open_;
};

QString NotesReader::read()
{
    while (place_ < html_.size()) {
        const qsizetype next = html_.indexOf(u'<', place_);
        const qsizetype end = next < 0 ? html_.size() : next;
        safe_ += html_.mid(place_, end - place_);
        place_ = end;
        if (next >= 0)
            takeTag();
    }
    while (!open_.isEmpty())
        close(open_.last());
    return safe_;
}

void NotesReader::takeTag()
{
    const QChar next = place_ + 1 < html_.size() ? html_.at(place_ + 1) : QChar();
    if (!next.isLetter() && !QStringLiteral("/!?").contains(next)) {
        safe_ += QStringLiteral("&lt;");
        ++place_;
        return;
    }
    if (html_.mid(place_, 4) == QStringLiteral("<!--")) {
        skipComment();
        return;
    }
    const qsizetype end = endOfTag();
    const QString tag = html_.mid(place_, end - place_);
    place_ = qMin(end + 1, html_.size());
    if (end < html_.size())
        takeElement(tag);
}

void NotesReader::skipComment()
{
    const qsizetype end = html_.indexOf(QStringLiteral("-->"), place_ + 4);
    place_ = end < 0 ? html_.size() : end + 3;
}

/// A bracket within quotes ends no tag.
qsizetype NotesReader::endOfTag() const
{
    QChar quote;
    for (qsizetype i = place_; i < html_.size(); ++i) {
        const QChar sign = html_.at(i);
        if (quote.isNull() && sign == u'>')
            return i;
        if (quote.isNull() && (sign == u'"' || sign == u'\''))
            quote = sign;
        else if (sign == quote)
            quote = QChar();
    }
    return html_.size();
}

void NotesReader::takeElement(const QString &tag)
{
    static const QRegularExpression named(QStringLiteral("\\A<(/?)([A-Za-z][A-Za-z0-9]*)"));
    const QRegularExpressionMatch match = named.match(tag);
    const QString name = match.captured(2).toLower();
    const QString element = elements().value(name);
    const bool isEnd = !match.captured(1).isEmpty();
    if (name == QStringLiteral("br"))
        safe_ += QStringLiteral("<br>");
    else if (name == QStringLiteral("td") || name == QStringLiteral("th"))
        safe_ += u' ';
    else if (!isEnd && isDropped(name))
        dropElement(name);
    else if (!element.isEmpty() && isEnd)
        close(element);
    else if (!element.isEmpty())
        open(element, tag);
}

void NotesReader::dropElement(const QString &name)
{
    const qsizetype end = html_.indexOf(QStringLiteral("</") + name, place_, Qt::CaseInsensitive);
    place_ = end < 0 ? html_.size() : end;
}

void NotesReader::open(const QString &element, const QString &tag)
{
    const QString address = element == QStringLiteral("a") ? webAddressIn(tag) : QString();
    const bool leadsNowhere = element == QStringLiteral("a") && address.isEmpty();
    // Paragraphs and items need no end.
    if (!open_.isEmpty() && open_.last() == element
        && (element == QStringLiteral("p") || element == QStringLiteral("li")))
        close(element);
    if (open_.size() >= deepest || leadsNowhere)
        return;
    open_ += element;
    safe_ += address.isEmpty() ? QStringLiteral("<%1>").arg(element)
                               : QStringLiteral("<a href=\"%1\">").arg(address.toHtmlEscaped());
}

/// (A copy: the list, of which it may be a part, changes.)
void NotesReader::close(QString element)
{
    if (!open_.contains(element))
        return;
    QString last;
    do {
        last = open_.takeLast();
        safe_ += QStringLiteral("</%1>").arg(last);
    } while (last != element);
}

} // namespace

QString safeReleaseNotes(const QString &html)
{
    QString text = html.left(largestReleaseNotes).remove(QChar());
    if (!text.contains(u'<'))
        return text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
    return NotesReader(text).read();
}
