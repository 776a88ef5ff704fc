#include "updater/windows/ReleaseNotesView.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr double cornerRadius = 12;
constexpr int innerMargin = 12;
constexpr double indent = 20;

} // namespace

ReleaseNotesView::ReleaseNotesView(QWidget *parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("notes"));
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(innerMargin);
    document()->setIndentWidth(indent);
    setTabChangesFocus(true);
}

void ReleaseNotesView::setNotes(const QString &safeHtml)
{
    notes_ = safeHtml;
    setHtml(safeHtml);
}

QVariant ReleaseNotesView::loadResource(int type, const QUrl &name)
{
    return {};
}

void ReleaseNotesView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.15);
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2) : QPen(line, 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(viewport()->rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    painter.end();
    QTextBrowser::paintEvent(event);
}

void ReleaseNotesView::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    // Links take their colour when the text is read.
    if (event->type() == QEvent::PaletteChange)
        setHtml(notes_);
}
