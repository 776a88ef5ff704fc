#include "crashreporter/ReportRequest.h"

namespace {

const QByteArray boundary = QByteArrayLiteral("0xKhTmLbOuNdArY");
const QByteArray insteadOfBoundary = QByteArrayLiteral("USED_TO_BE_KHTMLBOUNDARY");

QByteArray formWithReport(const QString &report)
{
    const QByteArray field = report.toUtf8().replace(boundary, insteadOfBoundary);
    return "--" + boundary + "\r\nContent-Disposition: form-data; name=\"crashlog\"\r\n\r\n" + field + "\r\n--"
        + boundary + "--\r\n";
}

} // namespace

NSMutableURLRequest requestWithReport(const QUrl &address, const QString &report)
{
    const QByteArray form = formWithReport(report);
    NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(address);
    request.setHTTPMethod("POST");
    request.setValueForHTTPHeaderField("multipart/form-data; boundary=" + boundary, "Content-Type");
    request.setValueForHTTPHeaderField("QBCrashReporter", "User-Agent");
    request.setValueForHTTPHeaderField(QByteArray::number(form.size()), "Content-Length");
    request.setHTTPBody(form);
    return request;
}
