// How long a clicked option takes until it is stored and announced, against one flush of one key plus one raw bus
// signal; and how long turning a page takes, against the same with the settings not read again. Needs a session bus and
// the built pane bundle as argument.

#include "bench/Median.h"
#include "bench/OpenedPane.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <cstdio>
#include <functional>

namespace {

constexpr int rounds = 300;
constexpr int hotKeyPage = 1, behaviourPage = 2, updatesPage = 3, helpPage = 4;
const QString rawKey = QStringLiteral("raw");
const QString rawDomain = QStringLiteral("com.example.raw");

double microseconds(const std::function<void()> &action)
{
    // What the round before left to be delivered and painted is not counted.
    QCoreApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) / 1000;
}

void print(const char *what, const char *floorName, const std::vector<double> &figures,
    const std::vector<double> &floors, double goal)
{
    std::printf("%s: %.1f us; %s: %.1f us; ratio %.2f (goal: at most %.1f; medians of %d)\n", what, median(figures),
        floorName, median(floors), median(figures) / median(floors), goal, rounds);
}

void flushAndSignal(bool value)
{
    CFPreferencesSetAppValue(rawKey, value, rawDomain);
    CFPreferencesAppSynchronize(rawDomain);
    QDBusConnection::sessionBus().send(QDBusMessage::createSignal(
        QStringLiteral("/raw"), QStringLiteral("com.example.Raw"), QStringLiteral("Changed")));
}

void timeAClick(QWidget *view)
{
    auto *checkBox = view->findChild<QAbstractButton *>(QStringLiteral("enableHorizontalWrapButton"));
    std::vector<double> clicks, floors;
    // The same amount in both files.
    NSUserDefaults *defaults = NSUserDefaults::standardUserDefaults();
    defaults->setPersistentDomainForName(defaults->persistentDomainForName(KTXLMAppID), rawDomain);
    for (int round = 0; round < rounds; ++round) {
        floors.push_back(microseconds([&] { flushAndSignal(round % 2); }));
        clicks.push_back(microseconds([&] { performClick(checkBox); }));
    }
    print("option clicked until it is stored and announced", "one flush and one raw signal", clicks, floors, 1.3);
}

void timeAPage(QWidget *view, const char *what, int page)
{
    auto *tabs = view->findChild<QTabWidget *>(QStringLiteral("tabbedView"));
    const auto turn = [tabs](int index) {
        tabs->setCurrentIndex(index);
        tabs->repaint();
    };
    std::vector<double> turns, floors;
    for (int round = 0; round < rounds; ++round) {
        tabs->blockSignals(true);
        turn(helpPage);
        floors.push_back(microseconds([&] { turn(page); }));
        turn(helpPage);
        tabs->blockSignals(false);
        turns.push_back(microseconds([&] { turn(page); }));
    }
    print(what, "without reading the settings", turns, floors, 3);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QApplication application(argumentCount, arguments);
    const auto pane = openedPane(QString::fromLocal8Bit(argumentCount > 1 ? arguments[1] : ""));
    if (!pane || !QDBusConnection::sessionBus().isConnected()) {
        std::fputs("usage: OptionBench PANE-BUNDLE, in a session with a bus\n", stderr);
        return 1;
    }
    timeAClick(pane->mainView());
    timeAPage(pane->mainView(), "page of the hot keys turned to", hotKeyPage);
    timeAPage(pane->mainView(), "page of the behaviour turned to", behaviourPage);
    timeAPage(pane->mainView(), "page without code of its own turned to", updatesPage);
    return 0;
}
