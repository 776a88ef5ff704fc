#include "platform/appkit/textfields/FieldEditor.h"

#include "platform/appkit/controls/Controls.h"

#include <QCoreApplication>
#include <QKeyEvent>

FieldEditor *FieldEditor::forWindow(const QWidget *view)
{
    FieldEditor *existing = existingForWindow(view);
    return existing || !view ? existing : new FieldEditor(view->window());
}

FieldEditor *FieldEditor::existingForWindow(const QWidget *view)
{
    return view ? view->window()->findChild<FieldEditor *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void FieldEditor::setBackgroundColor(const QColor &color)
{
    ::setBackgroundColor(delegate_, color);
}

void FieldEditor::setSelectedRange(int location, int length)
{
    if (!delegate_)
        return;
    if (length == 0)
        delegate_->setCursorPosition(location);
    else
        delegate_->setSelection(location, length);
}

void FieldEditor::selectAll()
{
    if (delegate_)
        delegate_->selectAll();
}

void FieldEditor::insertTab(QObject *)
{
    pressInDelegate(Qt::Key_Tab);
}

void FieldEditor::insertBacktab(QObject *)
{
    pressInDelegate(Qt::Key_Backtab);
}

void FieldEditor::pressInDelegate(Qt::Key key)
{
    if (!delegate_)
        return;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(delegate_, &press);
}
