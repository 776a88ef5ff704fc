#pragma once

#include "CertificateAuthority.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>
#include <optional>

/// A real web server on loopback, running for as long as the object lives. What it answers by path, the program
/// `web-server` in this folder tells.
class WebServer
{
public:
    /// Plain http; with a certificate, https. `folder` holds files to serve.
    explicit WebServer(const std::optional<ServerCertificate> &certificate = std::nullopt, const QString &folder = {});
    ~WebServer();

    /// The address of a path ("/200").
    QUrl url(const QString &path) const;
    /// The address of a path that answers with `status` and leads to another address.
    QUrl redirection(int status, const QUrl &to) const;
    /// What was asked, in order: "HEAD /200". Complete as soon as whoever asked has an answer.
    QStringList requests() const;

private:
    QTemporaryDir record_;
    QProcess process_;
    QString scheme_;
    int port_ = 0;
};

/// An address of loopback at which nobody listens.
QUrl addressWithoutServer();
