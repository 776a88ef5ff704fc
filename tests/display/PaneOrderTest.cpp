// In which order the pane does things, as far as it can be seen from outside.

#include "PaneOnRealStore.h"
#include "SystemCallFaults.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/colors/NSColorWell.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "updater/SUUpdater.h"
#include "updater/core/UpdateRecord.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QProcess>
#include <QSlider>
#include <QTextEdit>

namespace {

/// Writes down what happens, in order. What has no signal is looked at each time that something else happens.
class Happenings : public QObject
{
public:
    void note(const QString &what)
    {
        for (Silent &silent : silents_) {
            if (const QVariant value = silent.read(); std::exchange(silent.last, value) != value)
                happened_ += silent.name;
        }
        happened_ += what;
    }
    void watchSilent(const QString &name, const std::function<QVariant()> &read)
    {
        silents_.append({name, read, read()});
    }
    void watch(QWidget *control)
    {
        const auto changed = [this, name = control->objectName()] { note(name); };
        if (auto *button = qobject_cast<QAbstractButton *>(control))
            connect(button, &QAbstractButton::toggled, this, changed);
        else if (auto *slider = qobject_cast<QSlider *>(control))
            connect(slider, &QSlider::valueChanged, this, changed);
        else if (auto *popUp = qobject_cast<QComboBox *>(control))
            connect(popUp, &QComboBox::currentIndexChanged, this, changed);
        else if (auto *field = qobject_cast<QLineEdit *>(control))
            connect(field, &QLineEdit::textChanged, this, changed);
    }
    void watchEnabling(QWidget *control) { control->installEventFilter(this); }
    const QStringList &list() const { return happened_; }

protected:
    bool eventFilter(QObject *control, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            note(control->objectName() + QStringLiteral(" enabled or disabled"));
        return false;
    }

private:
    struct Silent
    {
        QString name;
        std::function<QVariant()> read;
        QVariant last;
    };
    QList<Silent> silents_;
    QStringList happened_;
};

/// A pane that tells when it would touch the agent, with its view loaded but not filled yet.
class AgentlessPane : public RecordingPane
{
public:
    using RecordingPane::RecordingPane;
    std::function<void(const QString &call)> atAgent;

protected:
    void stopAgent() override { atAgent(QStringLiteral("stopAgent")); }
    bool startAgent() override
    {
        atAgent(QStringLiteral("startAgent"));
        return true;
    }
};

class PaneOrder : public PaneOnRealStore
{
protected:
    PaneOrder() : calls_(systemCalls()) { }
    ~PaneOrder() override { systemCalls() = calls_; }

    /// Sets the controls to what neither the store nor the defaults will say.
    void disarrange()
    {
        for (const char *button :
            {"animateButton", "keyRepeatButton", "enableHorizontalWrapButton", "shiftCheckBox", "commandCheckBox"})
            setState(control(button), NSOnState);
        for (const char *button : {"enableVerticalWrapButton", "controlCheckBox", "optionCheckBox"})
            setState(control(button), NSOffState);
        for (const char *slider : {"repeatRateSlider", "repeatDelaySlider"})
            setFloatValue(control(slider), 0.75f);
        selectItemWithTag(control("HorizontalPopup"), 53);
        selectItemWithTag(control("VerticalPopup"), 56);
        setStringValue(control("modifiersField"), QStringLiteral("-"));
        for (int row = 0; row < 11; ++row)
            setStringValue(keyField(row), QStringLiteral("-"));
        setColor(control("overlayColorWell"), NSColor::whiteColor());
    }
    void watchSettings()
    {
        for (const char *name : {"animateButton", "keyRepeatButton", "repeatRateSlider", "repeatDelaySlider",
                 "HorizontalPopup", "VerticalPopup", "enableHorizontalWrapButton", "enableVerticalWrapButton",
                 "shiftCheckBox", "controlCheckBox", "optionCheckBox", "commandCheckBox"})
            happenings_.watch(control(name));
        for (const char *name : {"repeatDelaySlider", "repeatRateSlider", "delayTextField", "repeatTextField"})
            happenings_.watchEnabling(control(name));
        happenings_.watchSilent(QStringLiteral("modifiersField"), [this] { return text("modifiersField"); });
        happenings_.watchSilent(QStringLiteral("overlayColorWell"),
            [this] { return color(control("overlayColorWell")) != NSColor::whiteColor(); });
        for (int row = 0; row < 11; ++row)
            happenings_.watch(keyField(row));
        observe(&SystemCalls::rename, [this] { happenings_.note(QStringLiteral("written")); });
    }
    QStringList keyFieldNames()
    {
        QStringList names;
        for (int row = 0; row < 11; ++row)
            names += keyField(row)->objectName();
        return names;
    }

    Happenings happenings_;

private:
    SystemCalls calls_;
};

/// The messages on the session bus, as the bus itself takes them in.
class BusMonitor
{
public:
    explicit BusMonitor(BusRecorder &recorder)
    {
        process_.start(QStringLiteral("dbus-monitor"), {QStringLiteral("--session"), QStringLiteral("--profile")});
        // It hears nothing before it is one.
        EXPECT_TRUE(waitUntil([&] {
            recorder.post(QStringLiteral("monitor"), {});
            return !messages().isEmpty();
        }));
    }
    ~BusMonitor()
    {
        process_.kill();
        process_.waitForFinished();
    }

    /// Of those that a connection sent so far, the members, in order.
    QStringList membersSentBy(const QString &sender)
    {
        QStringList members;
        for (const QStringList &message : messages()) {
            if (message.size() > columnOfMember && message.at(columnOfSender) == sender)
                members += message.at(columnOfMember);
        }
        return members;
    }

private:
    static constexpr int columnOfSender = 3;
    static constexpr int columnOfMember = 7;

    QList<QStringList> messages()
    {
        output_ += QString::fromUtf8(process_.readAllStandardOutput());
        QList<QStringList> messages;
        for (const QString &line : output_.split(u'\n')) {
            if (!line.startsWith(u'#') && line.contains(u'\t'))
                messages += line.split(u'\t');
        }
        return messages;
    }

    QProcess process_;
    QString output_;
};

} // namespace

TEST_F(PaneOrder, thePaneAnnouncesItselfOnlyWhenItCanHearTheAnswer)
{
    BusMonitor monitor(bus());
    bus().clear();
    const QString ours = QDBusConnection::sessionBus().baseService();
    waitUntil([&] { return monitor.membersSentBy(ours).contains(QStringLiteral("Notification")); });
    const qsizetype before = monitor.membersSentBy(ours).size();
    paneWithoutView();
    // The recorder waits with a notification of its own, on the same connection.
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefPaneLaunched});
    QStringList sent;
    EXPECT_TRUE(waitUntil([&] {
        sent = monitor.membersSentBy(ours).mid(before);
        return sent.count(QStringLiteral("Notification")) == 2;
    }));
    EXPECT_GE(sent.count(QStringLiteral("AddMatch")), 5);
    EXPECT_LT(sent.lastIndexOf(QStringLiteral("AddMatch")), sent.indexOf(QStringLiteral("Notification")))
        << sent.join(u' ').toStdString();
}

TEST_F(PaneOrder, theUpdaterIsSetUpBeforeThePaneIsAnnounced)
{
    changeInfo({{QStringLiteral("SUPublicEDKey"), QStringLiteral("any")},
        {QStringLiteral("SUFeedURL"), QStringLiteral("http://127.0.0.1:1/appcast_beta.xml")}});
    store().set(SUEnableAutomaticChecks, QVariant(true));
    UpdateRecord().noteSuccess();
    bus().clear();
    // Each start of the schedule looks at the clock.
    QList<QStringList> announcedAtStart;
    systemCalls().realTime = [&, realTime = systemCalls().realTime] {
        announcedAtStart += bus().names();
        return realTime();
    };
    paneWithoutView();
    EXPECT_FALSE(announcedAtStart.isEmpty());
    EXPECT_EQ(announcedAtStart.count(QStringList()), announcedAtStart.size());
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefPaneLaunched});
    SUUpdater::updaterForBundle(NSBundle::bundleWithPath(bundle().path()))->setAutomaticallyChecksForUpdates(false);
}

TEST_F(PaneOrder, theLoadedViewIsFilledAfterTheAgentIsStartedAndTheCreditsComeLast)
{
    changeInfo({{QStringLiteral("CFBundleVersion"), QStringLiteral("120")}});
    store().set(SUEnableAutomaticChecks, QVariant(true));
    NSBundle *loaded = NSBundle::bundleWithPath(bundle().path());
    loaded->setLoaded();
    AgentlessPane pane(&calls);
    ASSERT_TRUE(pane.initWithBundle(loaded));
    pane.atAgent = [&](const QString &call) {
        happenings_.note(call);
        if (call != QStringLiteral("startAgent"))
            return;
        const auto find = [&](const char *name) { return pane.mainView()->findChild<QWidget *>(name); };
        happenings_.watch(find("autoUpdateButton"));
        observe(&SystemCalls::rename, [this] { happenings_.note(QStringLiteral("help book written down")); });
        happenings_.watchSilent(QStringLiteral("loadedVersion"), [&pane] { return pane.loadedVersion(); });
        for (const char *name : {"appNameField", "versionField"})
            happenings_.watchSilent(name, [field = find(name)] { return stringValue(field); });
        QObject::connect(qobject_cast<QTextEdit *>(find("creditsField"))->document(), &QObject::destroyed, &happenings_,
            [this] { happenings_.note(QStringLiteral("creditsField")); });
    };
    ASSERT_NE(pane.loadMainView(), nullptr);
    EXPECT_EQ(happenings_.list(),
        (QStringList{"stopAgent", "startAgent", "autoUpdateButton", "help book written down", "loadedVersion",
            "appNameField", "versionField", "creditsField"}))
        << happenings_.list().join(u' ').toStdString();
}

TEST_F(PaneOrder, theSettingsAreReadInOneOrder)
{
    store().set({{KTXAutoRepeat, false}, {KTXRepeatRate, 0.5f}, {KTXInitialDelay, 0.25f}, {KTXHWrap, false},
        {KTXVSort, QStringLiteral("TopEdge")},
        {KTXOverlayColor, NSArchiver::archivedDataWithRootObject(NSColor::colorWithCalibratedRGBA(1, 0, 0, 1))}});
    pane();
    disarrange();
    watchSettings();
    pane().readUserPrefs();
    EXPECT_EQ(happenings_.list(),
        (QStringList{"animateButton", "keyRepeatButton", "repeatRateSlider", "repeatDelaySlider",
             "repeatDelaySlider enabled or disabled", "repeatRateSlider enabled or disabled",
             "delayTextField enabled or disabled", "repeatTextField enabled or disabled", "written", "HorizontalPopup",
             "VerticalPopup", "enableHorizontalWrapButton", "enableVerticalWrapButton", "shiftCheckBox",
             "controlCheckBox", "optionCheckBox", "commandCheckBox", "modifiersField"}
            + keyFieldNames() + QStringList{"overlayColorWell", "written"}))
        << happenings_.list().join(u' ').toStdString();
}

TEST_F(PaneOrder, whatWasReadIsAnnouncedOnlyWhenItIsOnTheDisk)
{
    pane();
    bus().clear();
    QList<QStringList> announcedAtWriting;
    observe(&SystemCalls::rename, [&] { announcedAtWriting += bus().names(); });
    pane().readUserPrefs();
    EXPECT_EQ(announcedAtWriting, (QList<QStringList>{{}, {}}));
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefsChanged});
}
