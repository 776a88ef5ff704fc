#include "platform/appkit/web/WebView.h"

#include "platform/foundation/system/NSLog.h"

#include <QEvent>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <cmath>

namespace {

bool canBeShown(const QUrl &address)
{
    const QFileInfo file(address.toLocalFile());
    return address.isLocalFile() && file.isFile() && file.isReadable();
}

} // namespace

WebView::WebView(QWidget *parent) : QTextBrowser(parent)
{
    connect(this, &QTextEdit::textChanged, this, &WebView::fit);
}

/// The document's height follows its width, which is the view's.
void WebView::fit()
{
    if (!fitsContents_ || !isVisible())
        return;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int height = int(std::ceil(document()->size().height())) + 2 * frameWidth();
    if (height != maximumHeight())
        setFixedHeight(height);
}

void WebView::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    fit();
}

bool WebView::event(QEvent *event)
{
    const bool handled = QTextBrowser::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest)
        fit();
    return handled;
}

void WebView::doSetSource(const QUrl &address, QTextDocument::ResourceType type)
{
    if (isRedrawn_)
        return QTextBrowser::doSetSource(address, type);
    mainFrame_.provisional_.emplace(NSMutableURLRequest::requestWithURL(address));
    Q_EMIT didStartProvisionalLoadForFrame(&mainFrame_);
    const bool wasStopped = !mainFrame_.provisional_;
    mainFrame_.stopLoading();
    if (wasStopped)
        return;
    if (canBeShown(address))
        QTextBrowser::doSetSource(address, type);
    else
        NSLog(QStringLiteral("lumaroo: %1: %2 is no local page; what is shown stays")
                  .arg(objectName(), address.toDisplayString()));
}

void WebView::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty())
        redraw();
}

void WebView::redraw()
{
    // A page takes the links' colour when it is read. It is the same page: nobody is told.
    const QScopedValueRollback<bool> again(isRedrawn_, true);
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}
