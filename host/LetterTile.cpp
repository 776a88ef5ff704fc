#include "host/LetterTile.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>

namespace {

QPixmap tile(const QString &letter, int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient colors(0, 0, 0, size);
    colors.setColorAt(0, QColor(0x5b, 0x78, 0x9c));
    colors.setColorAt(1, QColor(0x3b, 0x54, 0x75));
    painter.setBrush(colors);
    painter.setPen(Qt::NoPen);
    const qreal edge = size / 16.0;
    painter.drawRoundedRect(QRectF(edge, edge, size - 2 * edge, size - 2 * edge), size / 5.0, size / 5.0);
    QFont font = painter.font();
    font.setPixelSize(size / 2);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, letter);
    return picture;
}

} // namespace

QIcon letterTile(const QString &name)
{
    QIcon icon;
    for (const int size : {16, 32, 64, 128})
        icon.addPixmap(tile(name.trimmed().left(1).toUpper(), size));
    return icon;
}
