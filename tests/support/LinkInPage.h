#pragma once

#include <QPoint>
#include <QTextBrowser>
#include <QTextCursor>

/// The middle of the first occurrence of a text in a page, in the coordinates of the page's viewport, scrolled to where
/// it can be seen; a null point when it is not there.
inline QPoint placeOfText(QTextBrowser *page, const QString &text)
{
    QTextCursor found = page->document()->find(text);
    if (found.isNull())
        return {};
    const int end = found.position();
    found.setPosition((found.anchor() + end) / 2);
    page->setTextCursor(found);
    page->ensureCursorVisible();
    return page->cursorRect(found).center();
}
