#pragma once

#include <QByteArray>
#include <QMap>
#include <QUrl>

/// A request for a web address, with the platform's defaults where nothing else is set.
class NSMutableURLRequest
{
public:
    static NSMutableURLRequest requestWithURL(const QUrl &url) { return NSMutableURLRequest(url); }

    QUrl url() const { return url_; }
    QByteArray httpMethod() const { return httpMethod_; }
    void setHTTPMethod(const QByteArray &method) { httpMethod_ = method; }
    /// A field of the request's head, in place of the one of that name that would be sent otherwise.
    QMap<QByteArray, QByteArray> allHTTPHeaderFields() const { return headerFields_; }
    void setValueForHTTPHeaderField(const QByteArray &value, const QByteArray &field) { headerFields_[field] = value; }
    QByteArray httpBody() const { return httpBody_; }
    void setHTTPBody(const QByteArray &body) { httpBody_ = body; }
    /// In seconds: for one that is waited for, from its sending to the last of its answers, redirections included; for
    /// any other, the longest time in which nothing happens.
    double timeoutInterval() const { return timeoutInterval_; }
    void setTimeoutInterval(double seconds) { timeoutInterval_ = seconds; }

private:
    explicit NSMutableURLRequest(const QUrl &url) : url_(url) { }
    QUrl url_;
    QByteArray httpMethod_ = "GET";
    QMap<QByteArray, QByteArray> headerFields_;
    QByteArray httpBody_;
    double timeoutInterval_ = 60;
};
