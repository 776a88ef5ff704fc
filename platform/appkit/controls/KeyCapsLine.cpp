#include "platform/appkit/controls/KeyCapsLine.h"

#include "platform/appkit/colors/ColorMixing.h"
#include "platform/appkit/controls/KeyCapField.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace {

constexpr int gap = 6;
constexpr int lineGap = 6;
constexpr int capPadding = 8;
constexpr int capRim = 4; // above and below the letters

} // namespace

KeyCapsLine::KeyCapsLine(QWidget *parent) : StyledLabel(parent)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void KeyCapsLine::setSentence(const QString &sentence, const QList<QStringList> &caps, const QString &spoken)
{
    pieces_.clear();
    QString rest = sentence;
    for (qsizetype place = 0; place < caps.size(); ++place) {
        const QString marker = u'%' + QString::number(place + 1);
        if (!rest.contains(marker))
            continue;
        addWords(rest.section(marker, 0, 0));
        for (const QString &cap : caps.at(place))
            pieces_.append({cap, true});
        rest = rest.section(marker, 1);
    }
    addWords(rest);
    setAccessibleName(spoken);
    updateGeometry();
    update();
}

void KeyCapsLine::addWords(const QString &words)
{
    const QStringList parts = words.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : parts)
        pieces_.append({word, false});
}

int KeyCapsLine::lineHeight() const
{
    return fontMetrics().height() + 2 * capRim + keyCapEdge;
}

QSize KeyCapsLine::sizeOf(const Piece &piece) const
{
    const int letters = fontMetrics().horizontalAdvance(piece.text);
    return {piece.isCap ? std::max(letters + 2 * capPadding, lineHeight()) : letters, lineHeight()};
}

QList<QRect> KeyCapsLine::places(int width) const
{
    QList<QRect> result;
    QPoint next;
    for (const Piece &piece : pieces_) {
        const QSize size = sizeOf(piece);
        if (next.x() > 0 && next.x() + size.width() > width)
            next = {0, next.y() + lineHeight() + lineGap};
        result.append(QRect(next, size));
        next.rx() += size.width() + gap;
    }
    return result;
}

QSize KeyCapsLine::sizeHint() const
{
    int width = 0;
    for (const Piece &piece : pieces_)
        width += sizeOf(piece).width() + gap;
    return {width, pieces_.isEmpty() ? 0 : lineHeight()};
}

QSize KeyCapsLine::minimumSizeHint() const
{
    int width = 0;
    for (const Piece &piece : pieces_)
        width = std::max(width, sizeOf(piece).width());
    return {width, pieces_.isEmpty() ? 0 : lineHeight()};
}

int KeyCapsLine::heightForWidth(int width) const
{
    return pieces_.isEmpty() ? 0 : places(width).last().bottom() + 1;
}

void KeyCapsLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor window = palette().color(QPalette::Window);
    const QColor letters = palette().color(QPalette::WindowText);
    const QList<QRect> all = places(width());
    for (qsizetype index = 0; index < all.size(); ++index) {
        const QRect place = QStyle::visualRect(layoutDirection(), rect(), all.at(index));
        if (pieces_.at(index).isCap)
            drawKeyCap(painter, place, palette(), mixed(window, letters, 0.05f), mixed(window, letters, 0.3f), 1);
        painter.setPen(letters);
        painter.drawText(place.adjusted(0, 0, 0, -keyCapEdge), Qt::AlignCenter, pieces_.at(index).text);
    }
}
