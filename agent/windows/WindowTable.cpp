#include "agent/windows/WindowTable.h"

#include <QStringList>

namespace {

constexpr int longestProgram = 24;

QString selectability(WindowIgnored ignored)
{
    switch (ignored) {
    case WindowIgnored::No:
        return QStringLiteral("yes");
    case WindowIgnored::OtherDesktop:
        return QStringLiteral("no: on another desktop");
    case WindowIgnored::Type:
        return QStringLiteral("no: a panel, a menu or the like");
    case WindowIgnored::NotInTaskbar:
        return QStringLiteral("no: not in the task bar");
    case WindowIgnored::Minimised:
        return QStringLiteral("no: minimised");
    case WindowIgnored::Program:
        return QStringLiteral("no: its program is excluded");
    }
    return {};
}

QString placeOf(const QRect &rect)
{
    if (rect.isEmpty())
        return QStringLiteral("not seen");
    return QStringLiteral("%1x%2+%3+%4").arg(rect.width()).arg(rect.height()).arg(rect.x()).arg(rect.y());
}

QStringList rowOf(const WindowDescription &window, const WindowWorld &world)
{
    const QString mark = window.windowID == world.activeWindow ? QStringLiteral("*") : QStringLiteral(" ");
    const QString name = window.appName.isEmpty() ? QStringLiteral("-") : window.appName.left(longestProgram);
    return {mark, QStringLiteral("0x%1").arg(window.windowID, 8, 16, QLatin1Char('0')), name,
        selectability(window.windowIsIgnored), placeOf(window.windowRect), window.windowName};
}

/// As wide as its longest text.
qsizetype widthOf(qsizetype column, const QList<QStringList> &rows)
{
    qsizetype width = 0;
    for (const QStringList &row : rows)
        width = std::max(width, row.at(column).size());
    return width;
}

QString inColumns(const QList<QStringList> &rows)
{
    const qsizetype last = rows.first().size() - 1;
    QList<qsizetype> widths;
    for (qsizetype column = 0; column < last; ++column)
        widths.append(widthOf(column, rows));
    QString text;
    for (const QStringList &row : rows) {
        for (qsizetype column = 0; column < last; ++column)
            text += row.at(column).leftJustified(widths.at(column)) + QStringLiteral("  ");
        text += row.last() + u'\n';
    }
    return text;
}

QString lineOf(const Monitor &monitor)
{
    return QStringLiteral("monitor %1, %2 Hz, scale %3\n")
        .arg(placeOf(monitor.rect))
        .arg(monitor.refreshRate, 0, 'f', 0)
        .arg(monitor.scale);
}

} // namespace

QString windowTable(const WindowWorld &world)
{
    QList<QStringList> rows{{QStringLiteral(" "), QStringLiteral("WINDOW"), QStringLiteral("PROGRAM"),
        QStringLiteral("SELECTABLE"), QStringLiteral("PLACE"), QStringLiteral("TITLE")}};
    int selectable = 0;
    for (const WindowDescription &window : world.windows) {
        rows.append(rowOf(window, world));
        selectable += window.isCandidate() ? 1 : 0;
    }
    QString text = inColumns(rows);
    text += QStringLiteral("%1 of %2 windows can be selected; * has the focus\n").arg(selectable).arg(rows.size() - 1);
    for (const Monitor &monitor : world.monitors)
        text += lineOf(monitor);
    return text;
}
