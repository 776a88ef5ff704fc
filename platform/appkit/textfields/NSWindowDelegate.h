#pragma once

class FieldEditor;
class QWidget;

/// Asked by a window whose content's owner it is.
class NSWindowDelegate
{
public:
    virtual ~NSWindowDelegate() = default;
    /// The editor to use for a text field that gains or has lost the focus; null for the window's own.
    virtual FieldEditor *windowWillReturnFieldEditorToObject(QWidget *window, QWidget *client) = 0;
};
