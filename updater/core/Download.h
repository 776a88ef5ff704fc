#pragma once

#include <QNetworkReply>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <functional>
#include <memory>

/// What is fetched, and how much of it at most.
struct DownloadRequest
{
    QUrl address;
    QUrl feed; ///< whose host everything has to come from; for the feed itself its own address
    qint64 largestSize = 0;
    qint64 exactSize = -1; ///< where it is known beforehand
    std::chrono::milliseconds longestSilence = std::chrono::seconds(30); ///< between two parts
    std::chrono::milliseconds longestTime = std::chrono::minutes(1); ///< altogether
};

/// Fetches one file over https, or over http from this machine; follows at most five redirections, each to where the
/// first request could have gone. Main thread only.
class Download : public QObject
{
    Q_OBJECT

public:
    /// Takes a part of the file; answers with an empty text, or with what went wrong, which ends the download.
    using Sink = std::function<QString(const QByteArray &part)>;

    Download(const DownloadRequest &request, Sink sink);
    ~Download() override;

    /// Called once. Everything is said by signals, never from within this call.
    void start();
    /// Ends it; nothing more is said.
    void cancel();

Q_SIGNALS:
    /// `total` is -1 where it is not known.
    void progressed(qint64 received, qint64 total);
    /// Once. `problem` is empty when all of the file has gone to the sink.
    void finished(const QString &problem);

private:
    void request();
    void takeHeaders();
    void takeRedirection(const QUrl &address);
    void takePart();
    void takeEnd();
    void end(const QString &problem);
    QString problemOfAnswer() const;

    DownloadRequest request_;
    Sink sink_;
    std::unique_ptr<QNetworkAccessManager> network_;
    QNetworkReply *reply_ = nullptr; ///< the network's
    QTimer silence_, time_;
    qint64 received_ = 0;
};
