#pragma once

class WebFrame;
class WebView;

/// Told of what a web view whose `delegate` is the owner loads; of nothing while the interface file loads.
class WebFrameLoadDelegate
{
public:
    virtual ~WebFrameLoadDelegate() = default;
    /// A page is about to be loaded: the user has followed a link, or code has asked for it. The frame's provisional
    /// data source tells which; stopLoading() of the frame keeps the view on its page.
    virtual void webViewDidStartProvisionalLoadForFrame(WebView *webView, WebFrame *frame) = 0;
};
