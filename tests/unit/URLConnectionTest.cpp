// Requests that are sent without waiting, to real servers on loopback.

#include "CapturedLog.h"
#include "ReportServer.h"
#include "Wait.h"
#include "WebServer.h"

#include "platform/appkit/web/NSURLConnection.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

class URLConnection : public testing::Test, public NSURLConnectionDelegate
{
public:
    void connectionDidFinishLoading(NSURLConnection *ended) override
    {
        EXPECT_EQ(ended, connection.get());
        ends += "finished";
        if (destroysConnection)
            connection.reset();
    }
    void connectionDidFailWithError(NSURLConnection *ended, const NSError &error) override
    {
        EXPECT_EQ(ended, connection.get());
        EXPECT_EQ(error.domain, NSURLErrorDomain);
        EXPECT_FALSE(error.localizedDescription.isEmpty());
        ends += QString::number(error.code);
        if (destroysConnection)
            connection.reset();
    }

protected:
    void start(const QUrl &url, double seconds = 60)
    {
        NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(url);
        request.setHTTPMethod("POST");
        request.setHTTPBody("body");
        request.setValueForHTTPHeaderField("text/plain", "Content-Type");
        request.setValueForHTTPHeaderField("Tester", "User-Agent");
        request.setTimeoutInterval(seconds);
        connection = NSURLConnection::connectionWithRequestDelegate(request, this);
        EXPECT_TRUE(ends.isEmpty());
    }
    /// What the delegate is told.
    QString endOf(const QUrl &url, double seconds = 60)
    {
        start(url, seconds);
        EXPECT_TRUE(waitUntil([this] { return !ends.isEmpty(); }));
        runPendingEvents();
        EXPECT_EQ(ends.size(), 1);
        return ends.value(0);
    }
    static QString code(NSURLErrorCode code) { return QString::number(code); }

    CapturedLog log;
    QStringList ends;
    std::unique_ptr<NSURLConnection> connection;
    bool destroysConnection = true;
};

} // namespace

TEST_F(URLConnection, anAnswerIsToldOnceAfterOneRequest)
{
    ReportServer server;
    EXPECT_EQ(endOf(server.url()), "finished");
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(server.requests[0].startsWith("POST /report HTTP/1.1\r\n"));
    EXPECT_TRUE(server.requests[0].endsWith("\r\n\r\nbody"));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(URLConnection, theConnectionMayStayAfterItsEnd)
{
    destroysConnection = false;
    ReportServer server;
    EXPECT_EQ(endOf(server.url()), "finished");
    EXPECT_TRUE(connection);
}

TEST_F(URLConnection, theOldRedirectionsAreFollowedByAGetWithoutTheBody)
{
    for (const int status : {301, 302, 303}) {
        ends.clear();
        ReportServer end;
        ReportServer server({ReportServer::redirection(status, end.url("/end"))});
        EXPECT_EQ(endOf(server.url()), "finished") << status;
        ASSERT_EQ(end.requests.size(), 1) << status;
        EXPECT_TRUE(end.requests[0].startsWith("GET /end HTTP/1.1\r\n")) << status;
        EXPECT_TRUE(end.requests[0].endsWith("\r\n\r\n")) << status;
        EXPECT_TRUE(end.requests[0].contains("User-Agent: Tester\r\n")) << status;
        EXPECT_FALSE(end.requests[0].contains("Content-")) << status;
    }
}

TEST_F(URLConnection, theNewRedirectionsAreFollowedByTheSameRequest)
{
    for (const int status : {307, 308}) {
        ends.clear();
        ReportServer end;
        ReportServer server({ReportServer::redirection(status, end.url("/end"))});
        EXPECT_EQ(endOf(server.url()), "finished") << status;
        EXPECT_TRUE(end.requests.value(0).startsWith("POST /end HTTP/1.1\r\n")) << status;
        EXPECT_TRUE(end.requests.value(0).endsWith("\r\n\r\nbody")) << status;
    }
}

TEST_F(URLConnection, aRedirectionIsJudgedByItsEnd)
{
    ReportServer refusing({ReportServer::status(500)});
    ReportServer toIt({ReportServer::redirection(302, refusing.url())});
    EXPECT_EQ(endOf(toIt.url()), "finished");
    ends.clear();
    ReportServer nowhere({ReportServer::redirection(302, addressWithoutServer())});
    EXPECT_EQ(endOf(nowhere.url()), code(NSURLErrorCannotConnectToHost));
    ends.clear();
    ReportServer elsewhere({ReportServer::redirection(302, QUrl("file:///etc/passwd"))});
    EXPECT_EQ(endOf(elsewhere.url()), "finished");
}

TEST_F(URLConnection, redirectionsWithoutEndAreNone)
{
    ReportServer server({ReportServer::status(302, "Location: /again\r\n")});
    EXPECT_EQ(endOf(server.url()), code(NSURLErrorHTTPTooManyRedirects));
    EXPECT_EQ(server.requests.size(), 21);
}

TEST_F(URLConnection, whereNobodyAnswersItFailsWithALoggedCause)
{
    EXPECT_EQ(endOf(addressWithoutServer()), code(NSURLErrorCannotConnectToHost));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].contains("127.0.0.1"));
    ends.clear();
    EXPECT_EQ(endOf(QUrl("http://nowhere.invalid/")), code(NSURLErrorCannotFindHost));
}

TEST_F(URLConnection, otherAddressesThanWebPagesAreNotAsked)
{
    for (const char *address : {"", "file:///etc/passwd", "mailto:nobody@lumaroo.example", "http:"}) {
        ends.clear();
        EXPECT_EQ(endOf(QUrl(address)), code(NSURLErrorUnsupportedURL)) << address;
    }
}

TEST_F(URLConnection, aServerThatSaysNothingFailsAfterTheRequestsTime)
{
    ReportServer server({ReportServer::silence});
    EXPECT_EQ(NSMutableURLRequest::requestWithURL(server.url()).timeoutInterval(), 60);
    EXPECT_EQ(endOf(server.url(), 0.5), code(NSURLErrorTimedOut));
}

TEST_F(URLConnection, halfAHeadIsNoAnswer)
{
    ReportServer server({"HTTP/1.1 200 OK\r\nContent-Le"});
    EXPECT_EQ(endOf(server.url()), code(NSURLErrorNetworkConnectionLost));
}

TEST_F(URLConnection, aServerThatHangsUpHasNotAnswered)
{
    ReportServer server({ReportServer::hangUp});
    EXPECT_EQ(endOf(server.url()), code(NSURLErrorNetworkConnectionLost));
    // The toolkit asks again where it is not told anything.
    EXPECT_LE(server.requests.size(), 2);
}

TEST_F(URLConnection, whatFollowsAWholeHeadDoesNotCount)
{
    ReportServer cutOff({"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf"});
    EXPECT_EQ(endOf(cutOff.url()), "finished");
    ends.clear();
    ReportServer large({"HTTP/1.1 200 OK\r\n\r\n" + QByteArray(qsizetype(8) * 1024 * 1024, 'x')});
    EXPECT_EQ(endOf(large.url()), "finished");
}

TEST_F(URLConnection, aRedirectionIsFollowedHoweverLongItsTextIs)
{
    ReportServer nowhere({"HTTP/1.1 302 Found\r\nLocation: " + addressWithoutServer().toEncoded() + "\r\n\r\n"
        + QByteArray(qsizetype(8) * 1024 * 1024, 'x')});
    EXPECT_EQ(endOf(nowhere.url()), code(NSURLErrorCannotConnectToHost));
}

TEST_F(URLConnection, aRedirectionWhoseTextNeverComesIsFollowed)
{
    ReportServer end;
    ReportServer stalling(
        {"HTTP/1.1 302 Found\r\nContent-Length: 100\r\nLocation: " + end.url("/end").toEncoded() + "\r\n\r\nhalf"});
    stalling.keepsConnections = true;
    EXPECT_EQ(endOf(stalling.url(), 2), "finished");
    ASSERT_EQ(end.requests.size(), 1);
    EXPECT_TRUE(end.requests[0].startsWith("GET /end HTTP/1.1\r\n"));
}

TEST_F(URLConnection, anAnswerThatStopsAfterItsHeadIsOneOnceItsTimeIsUp)
{
    ReportServer stalling({"HTTP/1.1 404 Not Found\r\nContent-Length: 100\r\n\r\nhalf"});
    stalling.keepsConnections = true;
    EXPECT_EQ(endOf(stalling.url(), 0.5), "finished");
    EXPECT_EQ(stalling.requests.size(), 1);
}

TEST_F(URLConnection, aConnectionThatIsDestroyedSaysNothingMore)
{
    ReportServer server({ReportServer::silence});
    start(server.url());
    ASSERT_TRUE(waitUntil([&] { return !server.requests.isEmpty(); }));
    connection.reset();
    EXPECT_TRUE(waitUntil([&] { return server.connectionsGone == 1; }));
    runPendingEvents();
    EXPECT_TRUE(ends.isEmpty());
}

TEST_F(URLConnection, aLargeBodyArrivesWhole)
{
    ReportServer server;
    NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(server.url());
    request.setHTTPMethod("POST");
    request.setHTTPBody(QByteArray(qsizetype(1024) * 1024, 'x'));
    request.setValueForHTTPHeaderField("text/plain", "Content-Type");
    connection = NSURLConnection::connectionWithRequestDelegate(request, this);
    ASSERT_TRUE(waitUntil([this] { return !ends.isEmpty(); }));
    EXPECT_EQ(ends, QStringList("finished"));
    EXPECT_TRUE(server.requests.value(0).endsWith(request.httpBody()));
}

TEST_F(URLConnection, aServerWhoseCertificateIsNotInOrderIsSentNothing)
{
    CertificateAuthority authority;
    const WebServer server(authority.certificateForLoopback());
    EXPECT_EQ(endOf(server.url("/200")), code(NSURLErrorSecureConnectionFailed));
    EXPECT_EQ(server.requests(), QStringList());
}
