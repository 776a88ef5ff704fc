#pragma once

#include <QString>

class FieldEditor;
class QWidget;

/// Told of what happens in a text field whose `delegate` is the owner.
class NSControlTextEditingDelegate
{
public:
    virtual ~NSControlTextEditingDelegate() = default;
    /// The user types into the field; false keeps the text as it is.
    virtual bool controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor) = 0;
    /// A key became a command such as "insertNewline:"; true means that it has been dealt with.
    virtual bool controlTextViewDoCommandBySelector(
        QWidget *control, FieldEditor *textView, const QString &command) = 0;
};
