#pragma once

#include "platform/appkit/Export.h"

#include <QPlainTextEdit>

/// A view of plain text, which its user can edit.
///
/// What has been set reads back the same to the last character, but for what the user has changed: the toolkit's own
/// reading makes blanks of no-break spaces, and one line end of all kinds. What the user types or pastes has line
/// feeds.
class LM_APPKIT NSTextView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit NSTextView(QWidget *parent = nullptr) : QPlainTextEdit(parent) { }

    QString string() const;
    void setString(const QString &text);
};
