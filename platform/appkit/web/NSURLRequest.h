#pragma once

#include <QByteArray>
#include <QUrl>

/// A request for a web address, with the platform's defaults where nothing else is set.
class NSMutableURLRequest
{
public:
    static NSMutableURLRequest requestWithURL(const QUrl &url) { return NSMutableURLRequest(url); }

    QUrl url() const { return url_; }
    QByteArray httpMethod() const { return httpMethod_; }
    void setHTTPMethod(const QByteArray &method) { httpMethod_ = method; }
    /// In seconds, from the sending of the request to the last of its answers, redirections included.
    double timeoutInterval() const { return timeoutInterval_; }
    void setTimeoutInterval(double seconds) { timeoutInterval_ = seconds; }

private:
    explicit NSMutableURLRequest(const QUrl &url) : url_(url) { }
    QUrl url_;
    QByteArray httpMethod_ = "GET";
    double timeoutInterval_ = 60;
};
