#include "CertificateAuthority.h"

#include <QFile>
#include <QProcess>

namespace {

const QString loopbackNames = QStringLiteral("DNS:localhost,IP:127.0.0.1");
constexpr int longestWait = 60000;

void openssl(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("openssl"), arguments);
    if (!process.waitForFinished(longestWait) || process.exitCode() != 0)
        qFatal("openssl: %s", process.readAll().constData());
}

QStringList newKey(const QString &path)
{
    return {QStringLiteral("-newkey"), QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
        QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-noenc"), QStringLiteral("-keyout"), path};
}

} // namespace

CertificateAuthority::CertificateAuthority()
{
    openssl(QStringList{QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-days"), QStringLiteral("2"),
                QStringLiteral("-subj"), QStringLiteral("/CN=Test authority"), QStringLiteral("-out"), certificate()}
        + newKey(path(QStringLiteral("authority.key"))));
}

ServerCertificate CertificateAuthority::certificateForLoopback()
{
    return issue(loopbackNames, 1);
}

ServerCertificate CertificateAuthority::certificateForName(const QString &name)
{
    return issue(QStringLiteral("DNS:") + name, 1);
}

ServerCertificate CertificateAuthority::expiredCertificate()
{
    return issue(loopbackNames, -1);
}

ServerCertificate CertificateAuthority::issue(const QString &alternativeNames, int days)
{
    const QString name = QString::number(++issued_);
    const ServerCertificate issued{path(name + QStringLiteral(".pem")), path(name + QStringLiteral(".key"))};
    const QString request = path(name + QStringLiteral(".request"));
    QFile extensions(path(name + QStringLiteral(".extensions")));
    if (!extensions.open(QIODevice::WriteOnly))
        qFatal("%s", qPrintable(extensions.errorString()));
    extensions.write("subjectAltName=" + alternativeNames.toUtf8());
    extensions.close();
    openssl(QStringList{QStringLiteral("req"), QStringLiteral("-new"), QStringLiteral("-subj"),
                QStringLiteral("/CN=Test server"), QStringLiteral("-out"), request}
        + newKey(issued.key));
    openssl({QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-in"), request, QStringLiteral("-CA"),
        certificate(), QStringLiteral("-CAkey"), path(QStringLiteral("authority.key")), QStringLiteral("-set_serial"),
        name, QStringLiteral("-days"), QString::number(days), QStringLiteral("-extfile"), extensions.fileName(),
        QStringLiteral("-out"), issued.certificate});
    return issued;
}
