#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"

namespace {

class PaneDebugLog : public PaneOnRealStore
{
protected:
    /// Everything that the pane's host calls in the pane's life.
    QStringList linesOfALife()
    {
        CapturedLog log;
        KTXLumarooPreferencePane::initialize();
        showPane();
        pane().shouldUnselect();
        pane().willUnselect();
        pane().didUnselect();
        destroyPane();
        return log.lines();
    }
};

} // namespace

TEST_F(PaneDebugLog, withDebuggingOnFourCallsAreLogged)
{
    store().set(KTXShouldDebug, QVariant(true));
    EXPECT_EQ(linesOfALife(),
        (QStringList{"Lumaroo prefPane: initialize", "Lumaroo prefPane: initWithBundle", "Lumaroo prefPane: willSelect",
            "Lumaroo prefPane: didSelect"}));
}

TEST_F(PaneDebugLog, withoutItNothingIsLogged)
{
    EXPECT_EQ(linesOfALife(), QStringList());
    store().set(KTXShouldDebug, QVariant(false));
    EXPECT_EQ(linesOfALife(), QStringList());
}

TEST_F(PaneDebugLog, onlyTheBooleanSwitchesItOn)
{
    for (const QVariant &value : {QVariant(qlonglong(1)), QVariant(QStringLiteral("YES")), QVariant(1.0)}) {
        store().set(KTXShouldDebug, value);
        EXPECT_EQ(linesOfALife(), QStringList());
    }
}

TEST_F(PaneDebugLog, theSwitchCountsFromTheNextCallOn)
{
    pane();
    CapturedLog log;
    pane().didSelect();
    store().set(KTXShouldDebug, QVariant(true));
    pane().didSelect();
    store().set(KTXShouldDebug, QVariant(false));
    pane().didSelect();
    EXPECT_EQ(log.lines(), QStringList{"Lumaroo prefPane: didSelect"});
}

TEST_F(PaneDebugLog, theLineOfTheInitialiserComesAlsoWhenItFails)
{
    store().set(KTXShouldDebug, QVariant(true));
    const CapturedLog log;
    RecordingPane unbundled(&calls);
    EXPECT_FALSE(unbundled.initWithBundle(nullptr));
    EXPECT_EQ(log.lines(), QStringList{"Lumaroo prefPane: initWithBundle"});
}

TEST_F(PaneDebugLog, thePaneNeverWritesTheSwitch)
{
    showPane();
    EXPECT_FALSE(store().domain().contains(KTXShouldDebug));
}
