// A pane that records the host's calls in the file "calls" of its bundle, and does at each what the file
// "wishes/<call>" there says. Its button "alert" begins a sheet.

#include "platform/appkit/alerts/NSAlert.h"
#include "platform/appkit/interface/NSPreferencePane.h"
#include "platform/foundation/NSException.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <dlfcn.h>

namespace {

const QString throwWish = QStringLiteral("throw");

QString bundlePath()
{
    static const int here = 0;
    Dl_info info;
    dladdr(&here, &info);
    return QDir::cleanPath(QFileInfo(QFile::decodeName(info.dli_fname)).path() + QStringLiteral("/../.."));
}

void append(const QString &path, const QString &line)
{
    QFile file(path);
    if (file.open(QIODevice::Append))
        file.write(line.toUtf8() + '\n');
}

QString wishFor(const QString &call)
{
    QFile file(bundlePath() + QStringLiteral("/wishes/") + call);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Records a call, with the view's state where there is one, and returns what to do at it.
QString record(const QString &call, const QWidget *view = nullptr)
{
    const QString state = !view ? QString() : view->isVisible() ? QStringLiteral(" shown") : QStringLiteral(" hidden");
    append(bundlePath() + QStringLiteral("/calls"), call + state);
    const QString common = qEnvironmentVariable("LUMAROO_TEST_CALLS");
    if (!common.isEmpty())
        append(common, QFileInfo(bundlePath()).completeBaseName() + u' ' + call);
    const QString wish = wishFor(call);
    if (wish == throwWish)
        throw NSException(QStringLiteral("TestException"), call);
    return wish;
}

} // namespace

class TestPane : public NSPreferencePane
{
    Q_OBJECT

public:
    ~TestPane() override { record(QStringLiteral("dealloc")); }

    bool initWithBundle(NSBundle *bundle) override
    {
        const QString wish = record(QStringLiteral("initWithBundle"));
        if (wish == QStringLiteral("post"))
            QTimer::singleShot(0, this, [] { record(QStringLiteral("run loop")); });
        return wish != QStringLiteral("fail") && NSPreferencePane::initWithBundle(bundle);
    }

    void mainViewDidLoad() override
    {
        for (const bool yes : {true, false}) {
            auto *button = mainView()->findChild<QPushButton *>(yes ? QStringLiteral("yes") : QStringLiteral("no"));
            connect(button, &QPushButton::clicked, this, [this, yes] { Q_EMIT replyToShouldUnselect(yes); });
        }
        connect(mainView()->findChild<QPushButton *>(QStringLiteral("alert")), &QPushButton::clicked, this,
            [this] { beginAlert(); });
        record(QStringLiteral("mainViewDidLoad"), mainView());
    }

    void willSelect() override { record(QStringLiteral("willSelect"), mainView()); }
    void didSelect() override { record(QStringLiteral("didSelect"), mainView()); }
    void willUnselect() override { record(QStringLiteral("willUnselect"), mainView()); }
    void didUnselect() override { record(QStringLiteral("didUnselect"), mainView()); }

    NSPreferencePaneUnselectReply shouldUnselect() override
    {
        const QString wish = record(QStringLiteral("shouldUnselect"), mainView());
        if (wish == QStringLiteral("ask"))
            return askUser();
        if (wish == QStringLiteral("reply at once"))
            Q_EMIT replyToShouldUnselect(true);
        if (wish == QStringLiteral("cancel"))
            return NSUnselectCancel;
        return wish.isEmpty() ? NSUnselectNow : NSUnselectLater;
    }

private:
    void beginAlert()
    {
        auto alert = std::make_unique<NSAlert>();
        alert->setMessageText(QStringLiteral("Warning"));
        NSAlert::beginSheetModalForWindowModalDelegateDidEndSelectorContextInfo(std::move(alert), mainView(), this,
            [this](NSAlert *, int, const QString &) { record(QStringLiteral("alert ended"), mainView()); }, {});
    }

    NSPreferencePaneUnselectReply askUser()
    {
        QMessageBox question(QMessageBox::Question, QStringLiteral("Test pane"), QStringLiteral("Leave?"),
            QMessageBox::Yes | QMessageBox::Cancel, mainView()->window());
        question.setObjectName(QStringLiteral("question"));
        const bool leaves = question.exec() == QMessageBox::Yes;
        record(QStringLiteral("question ended"));
        return leaves ? NSUnselectNow : NSUnselectCancel;
    }
};

class TestPanePlugIn : public QObject, public NSPrincipalClass
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID NSPrincipalClass_iid)
    Q_INTERFACES(NSPrincipalClass)

public:
    void initialize() override { record(QStringLiteral("initialize")); }
    NSPreferencePane *alloc() override { return wishFor(QStringLiteral("alloc")).isEmpty() ? new TestPane : nullptr; }
};

#include "TestPane.moc"
