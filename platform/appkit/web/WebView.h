#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/web/WebFrame.h"

#include <QTextBrowser>

/// A view for local pages. In an interface file its property `mainFrameFile` names the first one, by its path below the
/// bundle's resources in the user's language.
///
/// A link is followed like in a browser, by click or key: the delegate hears of it, then a local file is loaded.
/// Nothing else ever is, neither page nor picture, whatever the delegate does; a file that cannot be read is one logged
/// line, and the view stays on its page. With `fitsContents` it is as high as what it shows, and what is around it
/// scrolls. Pages are drawn in the colours of the user's theme and follow it.
class LM_APPKIT WebView : public QTextBrowser
{
    Q_OBJECT
    Q_PROPERTY(bool fitsContents MEMBER fitsContents_)

public:
    explicit WebView(QWidget *parent = nullptr);
    WebFrame *mainFrame() { return &mainFrame_; }

Q_SIGNALS:
    void didStartProvisionalLoadForFrame(WebFrame *frame);

protected:
    void doSetSource(const QUrl &address, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void fit();
    void redraw();
    WebFrame mainFrame_;
    bool isRedrawn_ = false;
    bool fitsContents_ = false;
};
