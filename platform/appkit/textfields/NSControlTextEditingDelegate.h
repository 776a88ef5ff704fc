#pragma once

#include <QString>

class FieldEditor;
class QWidget;

/// Told of what happens in a text field whose `delegate` is the owner.
class NSControlTextEditingDelegate
{
public:
    virtual ~NSControlTextEditingDelegate() = default;
    /// The user types into the field, pastes with the middle button or commits an input method's text (a key press is
    /// NSApplication's current event). False keeps the text as it is; true lets this and all that follows change it
    /// until the field loses the focus; commands then are the field's own, too.
    virtual bool controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor) = 0;
    /// A key press became a command such as "insertNewline:"; true means that it has been dealt with, false that the
    /// field and its window handle it as usual.
    virtual bool controlTextViewDoCommandBySelector(
        QWidget *control, FieldEditor *textView, const QString &command) = 0;
};
