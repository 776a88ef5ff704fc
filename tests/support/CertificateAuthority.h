#pragma once

#include <QString>
#include <QTemporaryDir>

/// A server's certificate and its key, as files.
struct ServerCertificate
{
    QString certificate;
    QString key;
};

/// A certificate authority made for a test, gone with the object.
class CertificateAuthority
{
public:
    CertificateAuthority();

    /// The authority's own certificate, which whoever trusts it needs.
    QString certificate() const { return path(QStringLiteral("authority.pem")); }

    /// For "localhost" and 127.0.0.1.
    ServerCertificate certificateForLoopback();
    ServerCertificate certificateForName(const QString &name);
    /// For loopback, and over since yesterday.
    ServerCertificate expiredCertificate();

private:
    QString path(const QString &name) const { return folder_.filePath(name); }
    ServerCertificate issue(const QString &alternativeNames, int days);
    QTemporaryDir folder_;
    int issued_ = 0;
};
