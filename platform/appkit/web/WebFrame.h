#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/web/NSURLRequest.h"

#include <optional>

/// Where what a frame loads comes from.
class WebDataSource
{
public:
    explicit WebDataSource(const NSMutableURLRequest &initialRequest) : initialRequest_(initialRequest) { }
    /// As it was asked for, before anything was loaded.
    const NSMutableURLRequest &initialRequest() const { return initialRequest_; }

private:
    NSMutableURLRequest initialRequest_;
};

/// The part of a web view that shows a page; each view has one.
class LM_APPKIT WebFrame
{
public:
    /// What is about to be loaded; null but while the delegate is told of it.
    const WebDataSource *provisionalDataSource() const { return provisional_ ? &*provisional_ : nullptr; }
    /// Gives up what is about to be loaded: the view stays on its page.
    void stopLoading() { provisional_.reset(); }

private:
    friend class WebView;
    std::optional<WebDataSource> provisional_;
};
