// Key repeat: the check box that turns it on and off, and the sliders, as a user moves them in the real window.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QTest>

namespace {

constexpr int behaviourPage = 2;
const QStringList sliders{"repeatDelaySlider", "repeatRateSlider"};
const QStringList sliderLabels{"delayTextField", "repeatTextField"};

class PaneKeyRepeat : public PaneOnRealStore
{
protected:
    PaneKeyRepeat() { store().set(KTXFirstLaunch, QVariant(true)); }

    void showPage()
    {
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), behaviourPage);
        runPendingEvents();
        bus().clear();
    }

    void clickCheckBox() { QTest::mouseClick(control("keyRepeatButton"), Qt::LeftButton, {}, {8, 8}); }

    void expectStoredInSilence(const QVariantMap &expected)
    {
        EXPECT_TRUE(isEqualPropertyList(store().domain(), expected));
        EXPECT_EQ(bus().names(), QStringList());
    }

    void expectEnabled(const QStringList &names, bool enabled)
    {
        for (const QString &name : names)
            EXPECT_EQ(isEnabled(control(qPrintable(name))), enabled) << qPrintable(name);
    }
};

} // namespace

TEST_F(PaneKeyRepeat, turningKeyRepeatOffDisablesTheSlidersAtOnceAndTheLabelsAtTheNextReading)
{
    showPage();
    clickCheckBox();
    expectEnabled(sliders, false);
    expectEnabled(sliderLabels, true);
    pane().readUserPrefs();
    expectEnabled(sliders + sliderLabels, false);
    clickCheckBox();
    expectEnabled(sliders, true);
    expectEnabled(sliderLabels, false);
    pane().readUserPrefs();
    expectEnabled(sliders + sliderLabels, true);
}

TEST_F(PaneKeyRepeat, keyRepeatIsAnnouncedBeforeTheSlidersFollow)
{
    showPage();
    bool wereEnabled = false;
    struct Watch : QObject
    {
        std::function<void()> atEnabledChange;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::EnabledChange)
                atEnabledChange();
            return false;
        }
    } watch;
    watch.atEnabledChange = [&] {
        wereEnabled = true;
        EXPECT_EQ(bus().names(), QStringList(KTXLMPrefsChanged));
        EXPECT_EQ(store().value(KTXAutoRepeat), QVariant(false));
        EXPECT_TRUE(isEnabled(control("repeatRateSlider"))) << "the delay's slider comes first";
    };
    control("repeatDelaySlider")->installEventFilter(&watch);
    clickCheckBox();
    EXPECT_TRUE(wereEnabled);
}

TEST_F(PaneKeyRepeat, aSliderStoresItsExactValueAndAnnouncesNothing)
{
    showPage();
    QVariantMap expected = store().domain();
    auto *delay = control<FloatSlider>("repeatDelaySlider");
    QTest::keyClick(delay, Qt::Key_Right);
    ASSERT_GT(delay->value(), 0);
    expected.insert(KTXInitialDelay, float(delay->value()));
    expectStoredInSilence(expected);
    auto *rate = control<FloatSlider>("repeatRateSlider");
    QTest::keyClick(rate, Qt::Key_Left);
    ASSERT_LT(rate->value(), 1);
    expected.insert(KTXRepeatRate, float(rate->value()));
    expectStoredInSilence(expected);
}

TEST_F(PaneKeyRepeat, theSlidersReachFromTheirLeastToTheirGreatestValue)
{
    showPage();
    QTest::keyClick(control("repeatDelaySlider"), Qt::Key_End);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXInitialDelay), 2.0f));
    QTest::keyClick(control("repeatDelaySlider"), Qt::Key_Home);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXInitialDelay), 0.0f));
    QTest::keyClick(control("repeatRateSlider"), Qt::Key_Home);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXRepeatRate), 0.0f));
    QTest::keyClick(control("repeatRateSlider"), Qt::Key_End);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXRepeatRate), 1.0f));
}

TEST_F(PaneKeyRepeat, aSliderWritesTheDomainAsItStandsWithEverythingElseInIt)
{
    showPage();
    store().set(QStringLiteral("theirs"), QVariant(QByteArray("kept")));
    QVariantMap expected = store().domain();
    QTest::keyClick(control("repeatDelaySlider"), Qt::Key_End);
    expected.insert(KTXInitialDelay, 2.0f);
    expectStoredInSilence(expected);
}

TEST_F(PaneKeyRepeat, aSliderOnAnEmptyDomainStoresItsValueAlone)
{
    showPage();
    store().clear();
    pane().changeSlider(control("repeatRateSlider"));
    EXPECT_TRUE(isEqualPropertyList(store().domain(), QVariantMap{{KTXRepeatRate, 1.0f}}));
}

TEST_F(PaneKeyRepeat, aSliderWithAnotherTagWritesTheDomainAsItStands)
{
    showPage();
    QVariantMap expected = store().domain();
    FloatSlider stranger;
    stranger.setProperty("tag", 73);
    // Set, but not flushed: the next writing of the domain takes it along.
    CFPreferencesSetAppValue(QStringLiteral("theirs"), true, KTXLMAppID);
    pane().changeSlider(&stranger);
    expected.insert(QStringLiteral("theirs"), true);
    expectStoredInSilence(expected);
}

TEST_F(PaneKeyRepeat, aSliderWithAnotherTagChangesNothing)
{
    showPage();
    const QVariantMap before = store().domain();
    FloatSlider stranger;
    stranger.setProperty("tag", 73);
    pane().changeSlider(&stranger);
    expectStoredInSilence(before);
}
