#pragma once

#include <QObject>

class QTextDocument;
class QTextEdit;

/// Has a document laid out when its view is first shown. Setting out a text loads its fonts, and a page of a window may
/// never be turned to.
class LayoutWhenShown : public QObject
{
public:
    /// Owned by the document; ends by itself.
    LayoutWhenShown(QTextEdit *view, QTextDocument *document);

    bool eventFilter(QObject *view, QEvent *event) override;

private:
    QTextDocument *document_;
};
