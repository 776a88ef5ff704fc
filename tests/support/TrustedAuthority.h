#pragma once

#include "CertificateAuthority.h"

#include <QFile>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslConfiguration>

/// While it lives, this process trusts an authority made for a test, as if it stood among the system's. Tests that use
/// it link Qt6::Network.
class TrustedAuthority
{
public:
    explicit TrustedAuthority(const CertificateAuthority &authority)
        : before_(QSslConfiguration::defaultConfiguration())
    {
        QSslConfiguration trusting = before_;
        trusting.addCaCertificates(QSslCertificate::fromPath(authority.certificate()));
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    ~TrustedAuthority() { QSslConfiguration::setDefaultConfiguration(before_); }
    Q_DISABLE_COPY_MOVE(TrustedAuthority)

private:
    QSslConfiguration before_;
};
