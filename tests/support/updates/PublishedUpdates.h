#pragma once

#include "UpdatableBundle.h"
#include "WebServer.h"

#include "updater/core/UpdateCheck.h"

/// A maker's server on loopback, with a folder of its own, and the bundle that follows its feed.
class PublishedUpdates : public UpdatableBundle
{
protected:
    explicit PublishedUpdates(const QString &parent = QDir::tempPath());

    QString served(const QString &name) const { return published_.filePath(name); }
    QUrl feed() const { return server.url(QStringLiteral("/appcast.xml")); }

    /// Puts an archive of a version there and returns what a feed tells of it.
    AppcastItem publish(int version) const;
    AppcastItem publish(int version, const QByteArray &archive) const;
    /// Writes the feed.
    void tell(const QList<AppcastItem> &items) const;
    void tellText(const QByteArray &feed) const;

    /// What comes of a check of a feed, and of having an item wait.
    UpdateCheckResult check(bool isAskedByUser = true) { return check(feed(), isAskedByUser); }
    UpdateCheckResult check(const QUrl &address, bool isAskedByUser = true);
    UpdateProblem download(const AppcastItem &item) { return download(item, feed()); }
    UpdateProblem download(const AppcastItem &item, const QUrl &from);
    /// The version that a check offers; empty for none.
    QString offered(bool isAskedByUser = true);

private:
    QTemporaryDir published_;

protected:
    WebServer server;
};
