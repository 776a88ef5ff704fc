// How long a real key press takes until the hot key field holds its name and the settings file its code, against the
// same press into a plain line edit plus one flush of one key. Painting is counted on neither side. Needs a session
// with a bus and a window manager, and the built pane bundle as argument.

#include "KeyPress.h"
#include "bench/Median.h"
#include "bench/OpenedPane.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <cstdio>
#include <functional>
#include <linux/input-event-codes.h>

namespace {

constexpr int blocks = 10, pressesInABlock = 50;
constexpr int hotKeyPage = 1, screenshotRow = 6;
const QString rawKey = QStringLiteral("raw");
const QString rawDomain = QStringLiteral("com.example.raw");

/// Knows when a widget is done with a press of a key, and when the key has been released.
class KeyWatch : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *object, QEvent *event) override
    {
        const bool isKey = object->isWidgetType() && event->type() == QEvent::KeyPress;
        const bool isRelease = object->isWindowType() && event->type() == QEvent::KeyRelease;
        const bool isHandled = QApplication::notify(object, event);
        if (isKey && elapsed_ == 0)
            elapsed_ = timer_.nsecsElapsed();
        isReleased_ = isReleased_ || isRelease;
        return isHandled;
    }
    double microsecondsOf(int key)
    {
        // What the round before left to be painted is not counted.
        processEvents();
        elapsed_ = 0;
        isReleased_ = false;
        timer_.start();
        pressKey(key);
        while (elapsed_ == 0 || !isReleased_)
            processEvents(QEventLoop::WaitForMoreEvents);
        return double(elapsed_) / 1000;
    }

private:
    QElapsedTimer timer_;
    qint64 elapsed_ = 0;
    bool isReleased_ = false;
};

void waitForTheFocus(QWidget *view)
{
    view->window()->activateWindow();
    view->setFocus();
    while (!view->hasFocus())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

QLineEdit *fieldOf(QWidget *view, int row)
{
    for (QLineEdit *field : view->findChildren<QLineEdit *>()) {
        if (tag(field) == row)
            return field;
    }
    return nullptr;
}

/// A line edit that flushes one key of as many when its text changes.
std::unique_ptr<QLineEdit> plainLineEdit()
{
    NSUserDefaults *defaults = NSUserDefaults::standardUserDefaults();
    defaults->setPersistentDomainForName(defaults->persistentDomainForName(KTXLMAppID), rawDomain);
    auto edit = std::make_unique<QLineEdit>();
    QObject::connect(edit.get(), &QLineEdit::textEdited, edit.get(), [edit = edit.get()](const QString &text) {
        CFPreferencesSetAppValue(rawKey, QVariantMap{{KTXKeycode, text.right(1)}}, rawDomain);
        CFPreferencesAppSynchronize(rawDomain);
    });
    edit->show();
    return edit;
}

void measure(KeyWatch &watch, QLineEdit *field, std::vector<double> &times)
{
    waitForTheFocus(field);
    for (int press = 0; press < pressesInABlock; ++press) {
        // Each press replaces the text, in the plain one too.
        field->selectAll();
        times.push_back(watch.microsecondsOf(press % 2 ? KEY_B : KEY_N));
    }
}

} // namespace

int main(int argumentCount, char **arguments)
{
    KeyWatch watch(argumentCount, arguments);
    const auto pane = openedPane(QString::fromLocal8Bit(argumentCount > 1 ? arguments[1] : ""));
    if (!pane) {
        std::fputs("usage: HotKeyBench PANE-BUNDLE, in a session with a bus and a window manager\n", stderr);
        return 1;
    }
    selectTabViewItemAtIndex(pane->mainView()->findChild<QTabWidget *>(), hotKeyPage);
    QLineEdit *field = fieldOf(pane->mainView(), screenshotRow);
    const std::unique_ptr<QLineEdit> plain = plainLineEdit();
    std::vector<double> ours, floors, warmUp;
    for (int block = -1; block < blocks; ++block) {
        measure(watch, plain.get(), block < 0 ? warmUp : floors);
        measure(watch, field, block < 0 ? warmUp : ours);
    }
    const VirtualKeyCode last = pane->keyCodes()->at(screenshotRow);
    const QVariant stored =
        NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID).value(KTXScreenshotPref);
    if (stored.toMap().value(KTXKeycode).toString() != QString::number(last.number())
        || stringValue(field) != QStringLiteral("B"))
        return 1;
    std::printf("key pressed until the field and the file hold it: %.1f us; into a line edit and one flush: %.1f us; "
                "ratio %.2f (goal: at most 1.5; medians of %d)\n",
        median(ours), median(floors), median(ours) / median(floors), blocks * pressesInABlock);
    return 0;
}
