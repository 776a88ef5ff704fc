#pragma once

#include "platform/appkit/KeyRepeats.h"
#include "platform/appkit/NSEvent.h"
#include "platform/appkit/textfields/FieldEditor.h"

#include <QList>

class NSControlTextEditingDelegate;
class NSWindowDelegate;
class QKeyEvent;

/// Brings what happens in an interface file's text fields to their delegate and to the window's.
///
/// A field takes nothing by itself: a typed key, the middle button's paste and an input method's text ask the delegate
/// first, which may let editing begin; drops, the context menu's editing, keys that would edit and what an assistive
/// tool would set do nothing. The window's shortcuts and mnemonics come first, unless the delegate wants a press for
/// the field. Editing a field lasts from its gaining the focus until another view of its window has it; a sheet or
/// another window in front only interrupts it.
class TextFieldEvents : public QObject
{
    Q_OBJECT

public:
    /// `file` is the interface file's name for log lines. The delegates outlive it; a window may have none.
    TextFieldEvents(const QString &file, NSControlTextEditingDelegate *textDelegate, NSWindowDelegate *windowDelegate,
        QObject *parent);

    void add(QLineEdit *field);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void focusMoved(QWidget *now);
    void beginEditing(QLineEdit *field);
    void endEditing();
    FieldEditor *editorOf(QLineEdit *field);
    FieldEditor *askWindowDelegate(QLineEdit *field);
    bool handleShortcutOverride(QLineEdit *field, QKeyEvent &event);
    bool handlePress(QLineEdit *field, const QKeyEvent &event);
    bool handleCommand(QLineEdit *field, const NSEvent &event);
    void tellReasonAgainst(QLineEdit *field, const NSEvent &event);
    bool staysUnchanged(QLineEdit *field, const NSEvent &event);

    QByteArray file_;
    NSControlTextEditingDelegate *textDelegate_;
    NSWindowDelegate *windowDelegate_;
    QList<QPointer<QLineEdit>> fields_;
    QPointer<QLineEdit> edited_;
    QPointer<FieldEditor> editor_;
    KeyRepeats repeats_;
};
