#include "platform/appkit/controls/internal/DocumentAccessibility.h"

QAccessible::State DocumentAccessibility::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void *DocumentAccessibility::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

void DocumentAccessibility::selection(int index, int *start, int *end) const
{
    const bool isThere = index == 0 && cursor().hasSelection();
    *start = isThere ? cursor().selectionStart() : 0;
    *end = isThere ? cursor().selectionEnd() : 0;
}

void DocumentAccessibility::removeSelection(int index)
{
    if (index == 0)
        setCursorPosition(cursorPosition());
}

void DocumentAccessibility::setSelection(int index, int start, int end)
{
    if (index != 0)
        return;
    QTextCursor moved = cursor();
    moved.setPosition(qBound(0, start, characterCount()));
    moved.setPosition(qBound(0, end, characterCount()), QTextCursor::KeepAnchor);
    view()->setTextCursor(moved);
}

QString DocumentAccessibility::text(int start, int end) const
{
    return wholeText().mid(start, end - start);
}

int DocumentAccessibility::characterCount() const
{
    return int(wholeText().size());
}

QRect DocumentAccessibility::characterRect(int offset) const
{
    QTextCursor place = cursor();
    place.setPosition(qBound(0, offset, characterCount()));
    const QRect line = view()->cursorRect(place);
    return {view()->viewport()->mapToGlobal(line.topLeft()), line.size()};
}

int DocumentAccessibility::offsetAtPoint(const QPoint &point) const
{
    return view()->cursorForPosition(view()->viewport()->mapFromGlobal(point)).position();
}

void DocumentAccessibility::scrollToSubstring(int start, int)
{
    setCursorPosition(start);
    view()->ensureCursorVisible();
}

QString DocumentAccessibility::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}
