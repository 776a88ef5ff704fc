#pragma once

#include <QString>

class FieldEditor;
class QWidget;
struct NSEvent;

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

    // What only this desktop asks.

    /// A key that the field takes is pressed, and a shortcut or mnemonic of the window may lie on it with what is held.
    /// True gives it to the field, false to the shortcut, if there is one.
    virtual bool controlComesBeforeShortcuts(QWidget *control, const NSEvent &event) { return false; }
    /// A key is pressed that no field takes and nothing else uses. The line that is shown at the field, with the
    /// system's alert sound; empty for neither.
    virtual QString controlReasonAgainstKey(QWidget *control, const NSEvent &event) { return {}; }
};
