// Whether a web page can be reached, asked of real servers on loopback.

#include "TrustedAuthority.h"
#include "WebServer.h"

#include "platform/appkit/web/NSURLConnection.h"
#include "platform/appkit/web/ValidityChecking.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace {

class WebReachability : public testing::Test
{
protected:
    bool isValid(const QString &path) const { return httpIsValid(server.url(path)); }

    WebServer server;
};

class SecureWebReachability : public testing::Test
{
protected:
    CertificateAuthority authority;
};

NSMutableURLRequest headRequest(const QUrl &url)
{
    NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(url);
    request.setHTTPMethod("HEAD");
    return request;
}

} // namespace

TEST_F(WebReachability, aPageThatAnswers200IsThereAfterOneQuestionForItsHead)
{
    EXPECT_TRUE(isValid("/200"));
    EXPECT_EQ(server.requests(), QStringList("HEAD /200"));
}

TEST_F(WebReachability, aPageThatAnswersAnyOtherStatusIsNot)
{
    for (const int status : {201, 202, 203, 204, 206, 300, 304, 400, 401, 403, 404, 405, 407, 410, 429, 500, 502, 503})
        EXPECT_FALSE(isValid(QStringLiteral("/%1").arg(status))) << status;
}

TEST_F(WebReachability, aServerThatRefusesToTellTheHeadCountsAsUnavailable)
{
    EXPECT_FALSE(isValid("/no-head"));
    EXPECT_EQ(server.requests(), QStringList("HEAD /no-head"));
}

TEST_F(WebReachability, aRedirectionIsJudgedByWhereItLeads)
{
    for (const int status : {301, 302, 303, 307, 308}) {
        const WebServer asked;
        EXPECT_TRUE(httpIsValid(asked.redirection(status, asked.redirection(302, asked.url("/200"))))) << status;
        EXPECT_EQ(asked.requests().size(), 3) << asked.requests().join(u'\n').toStdString();
        for (const QString &request : asked.requests())
            EXPECT_TRUE(request.startsWith(u"HEAD ")) << request.toStdString();
        EXPECT_FALSE(httpIsValid(asked.redirection(status, asked.url("/404")))) << status;
        EXPECT_FALSE(httpIsValid(asked.redirection(status, asked.url("/204")))) << status;
    }
}

TEST_F(WebReachability, aRedirectionThatLeadsNowhereIsNot)
{
    EXPECT_FALSE(isValid("/301"));
    EXPECT_FALSE(isValid("/302"));
    EXPECT_FALSE(isValid("/loop"));
    EXPECT_FALSE(httpIsValid(server.redirection(302, addressWithoutServer())));
    EXPECT_FALSE(httpIsValid(server.redirection(302, QUrl("file:///etc/passwd"))));
    EXPECT_FALSE(httpIsValid(server.redirection(302, QUrl("ftp://127.0.0.1/"))));
}

TEST_F(WebReachability, whereNobodyAnswersThereIsNoPage)
{
    EXPECT_FALSE(httpIsValid(addressWithoutServer()));
    EXPECT_FALSE(httpIsValid(QUrl("http://nowhere.invalid/")));
}

TEST_F(WebReachability, aHeadThatIsCutOffIsNoAnswer)
{
    EXPECT_FALSE(isValid("/cut-off"));
}

TEST_F(WebReachability, whatFollowsAWholeHeadDoesNotCount)
{
    EXPECT_TRUE(isValid("/cut-off-body"));
    EXPECT_TRUE(isValid("/wrong-length"));
    EXPECT_TRUE(isValid("/endless"));
}

TEST_F(WebReachability, aHeadWithoutEndIsNoAnswer)
{
    NSMutableURLRequest request = headRequest(server.url("/endless-head"));
    request.setTimeoutInterval(1);
    EXPECT_FALSE(NSURLConnection::sendSynchronousRequestReturningResponseError(request, nullptr, nullptr));
}

TEST_F(WebReachability, otherAddressesThanWebPagesAreAskedNothing)
{
    QUrl withoutScheme = server.url("/200");
    withoutScheme.setScheme({});
    for (const QUrl &address : {QUrl(), QUrl("(null)"), QUrl("file:///etc/passwd"), QUrl("data:text/plain,200"),
             QUrl("mailto:somebody@lumaroo.example"), QUrl("ftp://127.0.0.1/"), QUrl("http:"), QUrl("https:///200"),
             withoutScheme})
        EXPECT_FALSE(httpIsValid(address)) << address.toString().toStdString();
    EXPECT_EQ(server.requests(), QStringList());
}

TEST_F(WebReachability, nothingElseHappensInTheCallersThreadMeanwhile)
{
    bool hasHappened = false;
    QObject object;
    QTimer::singleShot(0, &object, [&] { hasHappened = true; });
    QMetaObject::invokeMethod(
        &object, [&] { hasHappened = true; }, Qt::QueuedConnection);
    EXPECT_TRUE(isValid("/200"));
    EXPECT_FALSE(isValid("/404"));
    EXPECT_FALSE(hasHappened);
}

TEST_F(WebReachability, aServerThatDoesNotAnswerIsWaitedForAMinuteUnlessToldOtherwise)
{
    NSMutableURLRequest request = headRequest(server.url("/hanging"));
    EXPECT_EQ(request.timeoutInterval(), 60);
    request.setTimeoutInterval(0.5);
    NSHTTPURLResponse response(7);
    QString error;
    EXPECT_FALSE(NSURLConnection::sendSynchronousRequestReturningResponseError(request, &response, &error));
    EXPECT_EQ(response.statusCode(), 7);
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(isValid("/200"));
}

TEST_F(WebReachability, aStatusOtherThan200IsAnAnswerToTheRequest)
{
    NSHTTPURLResponse response;
    QString error;
    for (const int status : {200, 204, 302, 404, 503}) {
        const NSMutableURLRequest request = headRequest(server.url(QStringLiteral("/%1").arg(status)));
        EXPECT_TRUE(NSURLConnection::sendSynchronousRequestReturningResponseError(request, &response, &error));
        EXPECT_EQ(response.statusCode(), status);
    }
    EXPECT_EQ(error, QString());
}

TEST_F(WebReachability, onlyTheHeadCanBeAskedFor)
{
    QString error;
    const auto request = NSMutableURLRequest::requestWithURL(server.url("/200"));
    EXPECT_FALSE(NSURLConnection::sendSynchronousRequestReturningResponseError(request, nullptr, &error));
    EXPECT_EQ(error, "no method GET here");
    EXPECT_EQ(server.requests(), QStringList());
}

TEST_F(WebReachability, requestsGoThroughTheSystemsProxy)
{
    qputenv("http_proxy", server.url("").toEncoded());
    EXPECT_TRUE(httpIsValid(QUrl("http://page.invalid/200")));
    qunsetenv("http_proxy");
    EXPECT_EQ(server.requests(), QStringList("HEAD http://page.invalid/200"));
}

TEST_F(SecureWebReachability, aPageWithACertificateInOrderIsThere)
{
    const TrustedAuthority trusted(authority);
    const WebServer secure(authority.certificateForLoopback());
    EXPECT_TRUE(httpIsValid(secure.url("/200")));
    EXPECT_FALSE(httpIsValid(secure.url("/404")));
    EXPECT_EQ(secure.requests(), (QStringList{"HEAD /200", "HEAD /404"}));
}

TEST_F(SecureWebReachability, aPageWithACertificateOfAnUnknownAuthorityIsNot)
{
    const WebServer secure(authority.certificateForLoopback());
    EXPECT_FALSE(httpIsValid(secure.url("/200")));
    EXPECT_EQ(secure.requests(), QStringList());
}

TEST_F(SecureWebReachability, aPageWithACertificateForAnotherNameOrOneThatIsOverIsNot)
{
    const TrustedAuthority trusted(authority);
    for (const ServerCertificate &certificate :
        {authority.certificateForName("another.test"), authority.expiredCertificate()}) {
        const WebServer secure(certificate);
        EXPECT_FALSE(httpIsValid(secure.url("/200")));
        EXPECT_EQ(secure.requests(), QStringList());
    }
}

TEST_F(SecureWebReachability, aRedirectionMayLeadToASecurePageButNotAwayFromOne)
{
    const TrustedAuthority trusted(authority);
    const WebServer secure(authority.certificateForLoopback());
    const WebServer plain;
    EXPECT_TRUE(httpIsValid(plain.redirection(301, secure.url("/200"))));
    EXPECT_FALSE(httpIsValid(secure.redirection(301, plain.url("/200"))));
    EXPECT_EQ(plain.requests().size(), 1) << plain.requests().join(u'\n').toStdString();
}
