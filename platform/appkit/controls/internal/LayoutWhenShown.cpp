#include "platform/appkit/controls/internal/LayoutWhenShown.h"

#include <QEvent>
#include <QTextDocument>
#include <QTextEdit>

LayoutWhenShown::LayoutWhenShown(QTextEdit *view, QTextDocument *document) : QObject(document), document_(document)
{
    document->setLayoutEnabled(false);
    view->installEventFilter(this);
}

bool LayoutWhenShown::eventFilter(QObject *view, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        document_->setLayoutEnabled(true);
        deleteLater();
    }
    return QObject::eventFilter(view, event);
}
