// What happens when a report is sent: the bytes, the buttons, the ends.

#include "OpenAlert.h"
#include "ReportServer.h"
#include "ReportWindow.h"
#include "Wait.h"

#include "crashreporter/LivingReporters.h"

#include <QPushButton>
#include <QTimer>
#include <gmock/gmock.h>

namespace {

class ReportSending : public ReportWindow
{
protected:
    void open(const QUrl &address)
    {
        setAddress(address);
        isCrash ? openCrash(report) : openFeedback();
        ASSERT_TRUE(reporter);
        part<NSTextView>("informationField")->setString(message);
    }
    void send(const QUrl &address)
    {
        open(address);
        click("sendButton");
    }
    /// Sends to a server that takes it, and returns what came.
    QByteArray sent()
    {
        ReportServer server;
        send(server.url());
        EXPECT_TRUE(reporterGoes());
        return server.requests.value(0);
    }
    /// Looks at the alert that comes up over a window that is open, and reads it: a click on its button.
    class Reader : public AtAlert
    {
    public:
        explicit Reader(std::function<void()> look)
            : AtAlert([look = std::move(look)] { QTimer::singleShot(0, qApp, [look] { read(look); }); })
        {
        }

    private:
        static void read(const std::function<void()> &look)
        {
            ASSERT_TRUE(alertComesUp());
            look();
            openAlert()->findChild<QPushButton *>()->click();
        }
    };
    /// Sends to where it fails; the alert's texts and buttons.
    QStringList alertAfter(const QUrl &address)
    {
        open(address);
        QStringList texts;
        const Reader reader([&texts] {
            texts = textsOfAlert();
            for (const QPushButton *button : openAlert()->findChildren<QPushButton *>())
                texts += button->text();
        });
        const CapturedLog log;
        click("sendButton");
        EXPECT_TRUE(reporterGoes());
        EXPECT_EQ(log.lines().size(), 1) << log.lines().join('\n').toStdString();
        return texts;
    }

    bool isCrash = true;
    QString report = "the log";
    QString message = "the message";
};

QByteArrayList fieldsNamed(const QByteArray &request, const QByteArray &name)
{
    QByteArrayList fields;
    for (const QByteArray &line : request.left(request.indexOf("\r\n\r\n")).split('\n')) {
        if (line.toLower().startsWith(name.toLower() + ':'))
            fields += line.trimmed();
    }
    return fields;
}

QByteArray bodyOf(const QByteArray &request)
{
    return request.mid(request.indexOf("\r\n\r\n") + 4);
}

QByteArray formWith(const QByteArray &text)
{
    return "--0xKhTmLbOuNdArY\r\nContent-Disposition: form-data; name=\"crashlog\"\r\n\r\n" + text
        + "\r\n--0xKhTmLbOuNdArY--\r\n";
}

} // namespace

TEST_F(ReportSending, theRequestHasItsLineItsThreeFieldsOnceAndTheForm)
{
    const QByteArray request = sent();
    EXPECT_TRUE(request.startsWith("POST /report HTTP/1.1\r\n")) << request.toStdString();
    EXPECT_EQ(fieldsNamed(request, "Content-Type"),
        QByteArrayList{"Content-Type: multipart/form-data; boundary=0xKhTmLbOuNdArY"});
    EXPECT_EQ(fieldsNamed(request, "User-Agent"), QByteArrayList{"User-Agent: QBCrashReporter"});
    const QByteArray form = formWith("the message\n==========\nthe log");
    EXPECT_EQ(
        fieldsNamed(request, "Content-Length"), QByteArrayList{"Content-Length: " + QByteArray::number(form.size())});
    EXPECT_EQ(bodyOf(request), form);
}

TEST_F(ReportSending, theLengthCountsBytesOfUTF8)
{
    message = QStringLiteral("Grüße \U0001F600");
    const QByteArray request = sent();
    const QByteArray form = formWith("Gr\xc3\xbc\xc3\x9f"
                                     "e \xf0\x9f\x98\x80\n==========\nthe log");
    EXPECT_EQ(bodyOf(request), form);
    EXPECT_EQ(
        fieldsNamed(request, "Content-Length"), QByteArrayList{"Content-Length: " + QByteArray::number(form.size())});
}

TEST_F(ReportSending, whatWouldEndTheFieldIsReplacedWhereverItStands)
{
    message = "0xKhTmLbOuNdArY and --0xKhTmLbOuNdArY--";
    report = "0xKhTmLbOuNdArY0xKhTmLbOuNdArY";
    EXPECT_EQ(bodyOf(sent()),
        formWith("USED_TO_BE_KHTMLBOUNDARY and --USED_TO_BE_KHTMLBOUNDARY--\n==========\n"
                 "USED_TO_BE_KHTMLBOUNDARYUSED_TO_BE_KHTMLBOUNDARY"));
}

TEST_F(ReportSending, noCharacterChangesOnTheWay)
{
    report = QStringLiteral("a\u00a0b\r\nc\rd\u2028e\u2029f\n") + QChar(0) + QStringLiteral("\tg \u202f\n\n");
    message = QStringLiteral("\u00a0\r\n");
    EXPECT_EQ(bodyOf(sent()), formWith(message.toUtf8() + "\n==========\n" + report.toUtf8()));
}

TEST_F(ReportSending, whatTheUserHasChangedIsWhatGoes)
{
    ReportServer server;
    setAddress(server.url());
    ASSERT_TRUE(openCrash("keep\r\nremove me\r\nkeep\u00a0too"));
    auto *field = part<NSTextView>("crashLogField");
    ASSERT_TRUE(field->find("remove me"));
    field->textCursor().removeSelectedText();
    part<NSTextView>("informationField")->setString("mine");
    click("sendButton");
    ASSERT_TRUE(reporterGoes());
    EXPECT_EQ(bodyOf(server.requests.value(0)), formWith("mine\n==========\nkeep\r\n\r\nkeep\xc2\xa0too"));
}

TEST_F(ReportSending, nothingIsSentWithoutTheButton)
{
    ReportServer server;
    setAddress(server.url());
    for (const char *button : {"remindButton", "discardButton"}) {
        ASSERT_TRUE(openCrash());
        click(button);
        runPendingEvents();
    }
    EXPECT_EQ(server.requests.size(), 0);
    EXPECT_EQ(server.connectionsGone, 0);
}

TEST_F(ReportSending, meanwhileTheIndicatorRunsAndNoButtonActs)
{
    ReportServer server({ReportServer::silence});
    setAddress(server.url());
    ASSERT_TRUE(openCrash());
    EXPECT_FALSE(part("progressIndicator")->isVisible());
    for (const char *button : {"sendButton", "remindButton", "discardButton"})
        EXPECT_TRUE(part(button)->isEnabled()) << button;
    click("sendButton");
    ASSERT_TRUE(waitUntil([&] { return !server.requests.isEmpty(); }));
    EXPECT_TRUE(part("progressIndicator")->isVisible());
    EXPECT_EQ(part<QProgressBar>("progressIndicator")->maximum(), 0);
    for (const char *button : {"sendButton", "remindButton", "discardButton"})
        EXPECT_FALSE(part(button)->isEnabled()) << button;
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(livingReporters(), 1);
}

TEST_F(ReportSending, aReportThatIsSentMovesTheRememberedDateAndEndsTheReporter)
{
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    sent();
    EXPECT_GE(rememberedDate().toDateTime(), before);
    EXPECT_LE(rememberedDate().toDateTime(), QDateTime::currentDateTimeUtc().addSecs(1));
    EXPECT_EQ(store.domain().size(), 1);
    EXPECT_EQ(livingReporters(), 0);
}

TEST_F(ReportSending, aMessageThatIsSentStoresNothing)
{
    isCrash = false;
    EXPECT_TRUE(bodyOf(sent()).contains("Application: Lumaroo 77"));
    EXPECT_TRUE(store.domain().isEmpty());
    EXPECT_EQ(livingReporters(), 0);
}

TEST_F(ReportSending, anyStatusIsASuccess)
{
    const QList<int> statuses{200, 204, 400, 404, 500, 503};
    QList<QByteArray> answers;
    for (const int status : statuses)
        answers += ReportServer::status(status);
    ReportServer server(answers);
    for (qsizetype i = 0; i < statuses.size(); ++i) {
        store.clear();
        send(server.url());
        ASSERT_TRUE(reporterGoes()) << statuses[i];
        EXPECT_TRUE(rememberedDate().isValid()) << statuses[i];
        EXPECT_EQ(server.requests.size(), i + 1) << statuses[i];
    }
}

TEST_F(ReportSending, aFailureIsAnAlertWithOneButtonAndKeepsTheDate)
{
    ReportServer server({"HTTP/1.1 200 OK\r\nContent-Le"});
    EXPECT_EQ(alertAfter(server.url()),
        QStringList({"No report sent", "The connection to the server was lost. Please try again.", "Alas"}));
    EXPECT_TRUE(store.domain().isEmpty());
    EXPECT_EQ(livingReporters(), 0);
}

TEST_F(ReportSending, aMessageThatFailsSaysSo)
{
    isCrash = false;
    EXPECT_EQ(alertAfter(QUrl("http://127.0.0.1:1/")),
        QStringList({"No words sent", "The server takes no connection. Please try again later.", "Alas"}));
    EXPECT_TRUE(store.domain().isEmpty());
}

TEST_F(ReportSending, anAddressThatIsNoneFailsToo)
{
    EXPECT_EQ(alertAfter(QUrl("mailto:nobody@lumaroo.example")),
        QStringList({"No report sent", "The address of the server cannot be used.", "Alas"}));
}

TEST_F(ReportSending, theWindowIsThereUntilTheAlertIsRead)
{
    ReportServer server({"HTTP/1.1"});
    open(server.url());
    bool wasOpen = false;
    const Reader reader([&] { wasOpen = isOpen() && openAlert()->parentWidget() == window(); });
    const CapturedLog log;
    click("sendButton");
    ASSERT_TRUE(reporterGoes());
    EXPECT_TRUE(wasOpen);
}
