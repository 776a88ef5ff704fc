// What the behaviour page tells screen readers on their real bus, and what is stored when the reader's user sets a
// value through it.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QAccessible>
#include <QProcess>

namespace {

constexpr auto accessibilityBus = "/usr/libexec/at-spi-bus-launcher"; // of the package at-spi2-core

/// As soon as there is a bus for screen readers, the toolkit talks to whoever may be there.
const bool talksToAnyReader = qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");

QVariantList heardValues;

void hear(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::ValueChanged)
        heardValues += event->accessibleInterface()->valueInterface()->currentValue();
}

class PaneToAScreenReader : public PaneOnRealStore
{
protected:
    PaneToAScreenReader()
    {
        launcher_.start(accessibilityBus, {"--launch-immediately"});
        EXPECT_TRUE(talksToAnyReader && waitUntil([] { return QAccessible::isActive(); }));
        store().set(KTXFirstLaunch, QVariant(true));
        store().set(KTXInitialDelay, QVariant(0.5f));
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), 2);
        runPendingEvents();
        bus().clear();
        QAccessible::installUpdateHandler(&hear);
        heardValues.clear();
    }
    ~PaneToAScreenReader() override
    {
        QAccessible::installUpdateHandler(nullptr);
        launcher_.terminate();
        launcher_.waitForFinished();
    }

    FloatSlider *slider(const char *name) { return control<FloatSlider>(name); }
    QAccessibleInterface *told(const char *name) { return QAccessible::queryAccessibleInterface(control(name)); }

private:
    QProcess launcher_;
};

} // namespace

TEST_F(PaneToAScreenReader, theSlidersAreTheirValues)
{
    EXPECT_EQ(told("repeatDelaySlider")->text(QAccessible::Name), "Delay before the first repeat");
    EXPECT_EQ(told("repeatDelaySlider")->text(QAccessible::Value), "0.5 seconds");
    EXPECT_EQ(told("repeatDelaySlider")->valueInterface()->currentValue(), QVariant(0.5));
    EXPECT_EQ(told("repeatDelaySlider")->valueInterface()->maximumValue(), QVariant(2.0));
    EXPECT_EQ(told("repeatRateSlider")->text(QAccessible::Value), "1.00");
    EXPECT_EQ(told("repeatRateSlider")->valueInterface()->currentValue(), QVariant(1.0));
}

TEST_F(PaneToAScreenReader, eachChangeOfASliderIsToldOnceItHoldsIt)
{
    FloatSlider *delay = slider("repeatDelaySlider");
    delay->setValue(1);
    ASSERT_FALSE(heardValues.isEmpty());
    EXPECT_EQ(heardValues.takeLast(), QVariant(1.0));
    delay->setValue(1.01); // shown at the same place
    ASSERT_FALSE(heardValues.isEmpty());
    EXPECT_EQ(heardValues.takeLast(), QVariant(1.01));
    heardValues.clear();
    delay->setValue(1.01);
    EXPECT_EQ(heardValues, QVariantList());
    for (const auto &[key, value] : {std::pair(Qt::Key_End, 2.0), std::pair(Qt::Key_Home, 0.0)}) {
        QTest::keyClick(delay, key);
        ASSERT_FALSE(heardValues.isEmpty());
        EXPECT_EQ(heardValues.takeLast(), QVariant(value));
    }
}

TEST_F(PaneToAScreenReader, aValueSetThroughItIsStoredAsIfTheUserHadMovedTheSlider)
{
    QVariantMap expected = store().domain();
    told("repeatDelaySlider")->valueInterface()->setCurrentValue(0.75);
    expected.insert(KTXInitialDelay, 0.75f);
    EXPECT_TRUE(isEqualPropertyList(store().domain(), expected));
    EXPECT_EQ(bus().names(), QStringList());
    EXPECT_EQ(heardValues.last(), QVariant(0.75));
}

TEST_F(PaneToAScreenReader, theLineOfHelpBelowAnOptionBelongsToIt)
{
    const QList<std::pair<const char *, const char *>> options{{"cycleOrderPopup", "cycleOrderHint"},
        {"doubleClickActivateCheckBox", "doubleClickHint"}, {"animateButton", "animateHint"}};
    for (const auto &[option, help] : options) {
        EXPECT_FALSE(text(help).isEmpty()) << help;
        EXPECT_EQ(told(option)->text(QAccessible::Description), text(help)) << option;
    }
}
