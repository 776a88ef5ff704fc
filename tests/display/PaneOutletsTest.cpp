// The controls that the pane knows by name.

#include "PaneOnRealStore.h"

namespace {

/// Those that no operation reaches as well, in the order of their declaration.
const QStringList knownControls{"helpFileView", "modifiersField", "modifierCheckboxMatrix", "persistentModeMatrix",
    "shiftCheckBox", "controlCheckBox", "optionCheckBox", "commandCheckBox", "doubleTapCheckBox", "appNameField",
    "versionField", "creditsField", "toggleStateButton", "enableHorizontalWrapButton", "enableVerticalWrapButton",
    "HorizontalPopup", "VerticalPopup", "keyRepeatButton", "animateButton", "repeatDelaySlider", "repeatRateSlider",
    "keyRepeatBox", "delayTextField", "repeatTextField", "defaultColorButton", "autoUpdateButton", "overlayColorWell",
    "movementBox", "cancelBox", "tabbedView", "enabledState", "copyrightField", "betaWindow"};

class TheOutlets : public PaneOnRealStore
{
};

} // namespace

TEST_F(TheOutlets, everyControlThePaneKnowsIsInTheInterfaceFile)
{
    const CapturedLog log;
    pane();
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();
    EXPECT_EQ(pane().outletNames(), knownControls) << "in this order";
    for (const QString &name : knownControls)
        EXPECT_NE(control(qPrintable(name)), nullptr) << qPrintable(name);
}
