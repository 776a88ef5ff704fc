// The pane's window holds every control that the pane knows, with its tag, action, outlet name and kind.

#include "LoadedWindow.h"
#include "Wait.h"
#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/NSMatrix.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int noTag = -1;

struct ExpectedControl
{
    int page;
    const char *name;
    const char *className;
    int tag;
    const char *action;
};

const ExpectedControl controls[] = {
    {0, "toggleStateButton", "QCheckBox", noTag, "toggleAgent:"},
    {0, "tutorialButton", "QPushButton", noTag, "runTutorial:"},
    {0, "startAtLoginButton", "QCheckBox", noTag, "toggleStartAtLogin:"},
    {1, "freeModifiersButton", "QPushButton", noTag, "useFreeModifiers:"},
    {1, "undoRestoringButton", "QPushButton", noTag, "undoRestoringKeys:"},
    {1, "restoreAllKeysButton", "QPushButton", noTag, "restoreAllKeys:"},
    {1, "shiftCheckBox", "QCheckBox", 0x200, "updateModifierStates:"},
    {1, "controlCheckBox", "QCheckBox", 0x1000, "updateModifierStates:"},
    {1, "optionCheckBox", "QCheckBox", 0x800, "updateModifierStates:"},
    {1, "commandCheckBox", "QCheckBox", 0x100, "updateModifierStates:"},
    {1, "modifierCheckboxMatrix", "NSMatrix", noTag, "updateButtonStates:"},
    {2, "HorizontalPopup", "QComboBox", noTag, "enableChecked:"},
    {2, "VerticalPopup", "QComboBox", noTag, "enableChecked:"},
    {2, "cycleOrderPopup", "QComboBox", noTag, "enableChecked:"},
    {2, "enableHorizontalWrapButton", "QCheckBox", 30, "enableChecked:"},
    {2, "enableVerticalWrapButton", "QCheckBox", 31, "enableChecked:"},
    {2, "keyRepeatButton", "QCheckBox", 70, "enableChecked:"},
    {2, "repeatDelaySlider", "FloatSlider", 71, "changeSlider:"},
    {2, "repeatRateSlider", "FloatSlider", 72, "changeSlider:"},
    {2, "animateButton", "QCheckBox", 73, "enableChecked:"},
    {2, "doubleClickActivateCheckBox", "QCheckBox", 74, "enableChecked:"},
    {2, "persistentModeMatrix", "NSMatrix", noTag, "updatePersistentState:"},
    {2, "overlayColorWell", "NSColorWell", noTag, "updateColorInfo:"},
    {2, "defaultColorButton", "QPushButton", noTag, "useSystemColor:"},
    {3, "autoUpdateButton", "QCheckBox", noTag, "autoUpdateChecked:"},
    {3, "checkForUpdatesButton", "QPushButton", noTag, "checkForUpdates:"},
    {4, "visitButton", "QPushButton", noTag, "visit:"},
    {4, "feedbackButton", "QPushButton", noTag, "feedback:"},
    {5, "messageButton", "QPushButton", noTag, "orderFrontFeedbackWindow:"},
};

struct ExpectedOutlet
{
    const char *name;
    const char *className;
};

const ExpectedOutlet outlets[] = {
    {"helpFileView", "WebView"},
    {"modifiersField", "QLabel"},
    {"modifierCheckboxMatrix", "NSMatrix"},
    {"persistentModeMatrix", "NSMatrix"},
    {"shiftCheckBox", "QAbstractButton"},
    {"controlCheckBox", "QAbstractButton"},
    {"optionCheckBox", "QAbstractButton"},
    {"commandCheckBox", "QAbstractButton"},
    {"doubleTapCheckBox", "QAbstractButton"},
    {"appNameField", "QLabel"},
    {"versionField", "QLabel"},
    {"creditsField", "WebView"},
    {"toggleStateButton", "QAbstractButton"},
    {"enableHorizontalWrapButton", "QAbstractButton"},
    {"enableVerticalWrapButton", "QAbstractButton"},
    {"HorizontalPopup", "QComboBox"},
    {"VerticalPopup", "QComboBox"},
    {"keyRepeatButton", "QAbstractButton"},
    {"animateButton", "QAbstractButton"},
    {"repeatDelaySlider", "QSlider"},
    {"repeatRateSlider", "QSlider"},
    {"keyRepeatBox", "QWidget"},
    {"delayTextField", "QLabel"},
    {"repeatTextField", "QLabel"},
    {"defaultColorButton", "QAbstractButton"},
    {"autoUpdateButton", "QAbstractButton"},
    {"overlayColorWell", "NSColorWell"},
    {"movementBox", "QWidget"},
    {"cancelBox", "QWidget"},
    {"tabbedView", "QTabWidget"},
    {"enabledState", "QLabel"},
    {"copyrightField", "QLabel"},
    {"betaWindow", "BuildNotesWindow"},
};

std::vector<int> itemTags(const LoadedWindow &window, const char *popUp)
{
    std::vector<int> tags;
    const auto *comboBox = window.find<QComboBox>(QString::fromLatin1(popUp));
    for (int index = 0; index < comboBox->count(); ++index)
        tags.push_back(comboBox->itemData(index).toInt());
    return tags;
}

std::vector<int> cellTags(const LoadedWindow &window, const char *matrix)
{
    std::vector<int> tags;
    for (const QAbstractButton *cell : window.find<NSMatrix>(QString::fromLatin1(matrix))->cells())
        tags.push_back(tag(cell));
    return tags;
}

class TheWindow : public testing::Test
{
protected:
    void expectOnly(const QString &selector, const QObject *sender)
    {
        ASSERT_EQ(window.performedActions().size(), 1) << qPrintable(selector);
        EXPECT_EQ(window.performedActions().first().selector, selector);
        EXPECT_EQ(window.performedActions().first().sender, sender);
        window.forgetPerformedActions();
    }

    LoadedWindow window;
};

TEST_F(TheWindow, loadsWithoutAComplaint)
{
    EXPECT_EQ(window.complaints(), QStringList());
    EXPECT_THAT(window.performedActions(), IsEmpty());
}

TEST_F(TheWindow, showsItsPagesInOrder)
{
    const auto *tabbedView = window.find<QTabWidget>(QStringLiteral("tabbedView"));
    const QStringList identifiers{QStringLiteral("general"), QStringLiteral("hotkeys"), QStringLiteral("behaviour"),
        QStringLiteral("updates"), QStringLiteral("help"), QStringLiteral("about")};
    ASSERT_EQ(tabbedView->count(), identifiers.size());
    for (int index = 0; index < identifiers.size(); ++index)
        EXPECT_EQ(indexOfTabViewItemWithIdentifier(tabbedView, identifiers[index]), index);
    EXPECT_EQ(tabbedView->currentIndex(), 0);
}

TEST_F(TheWindow, hasEveryControlOnItsPageWithTagAndAction)
{
    for (const ExpectedControl &expected : controls) {
        SCOPED_TRACE(expected.name);
        auto *control = window.page(expected.page)->findChild<QWidget *>(QString::fromLatin1(expected.name));
        ASSERT_TRUE(control);
        EXPECT_TRUE(control->inherits(expected.className)) << control->metaObject()->className();
        EXPECT_EQ(tag(control), expected.tag);
        EXPECT_EQ(control->property("action").toString(), QLatin1StringView(expected.action));
    }
}

TEST_F(TheWindow, hasAnObjectForEveryOutlet)
{
    for (const ExpectedOutlet &expected : outlets) {
        SCOPED_TRACE(expected.name);
        const auto objects = window.root()->findChildren<QObject *>(QString::fromLatin1(expected.name));
        ASSERT_EQ(objects.size(), 1);
        EXPECT_TRUE(objects.first()->inherits(expected.className)) << objects.first()->metaObject()->className();
    }
}

TEST_F(TheWindow, performsAButtonsActionWhenItIsClicked)
{
    for (const ExpectedControl &expected : controls) {
        SCOPED_TRACE(expected.name);
        auto *button = window.find<QAbstractButton>(QString::fromLatin1(expected.name));
        if (!button || qobject_cast<NSColorWell *>(button))
            continue;
        performClick(button);
        expectOnly(QString::fromLatin1(expected.action), button);
    }
}

TEST_F(TheWindow, givesEachPopUpItemItsTag)
{
    EXPECT_THAT(itemTags(window, "HorizontalPopup"), ElementsAre(54, 53, 52, 58, 60));
    EXPECT_THAT(itemTags(window, "VerticalPopup"), ElementsAre(57, 55, 56, 59, 61));
    EXPECT_THAT(itemTags(window, "cycleOrderPopup"), ElementsAre(50, 51));
}

TEST_F(TheWindow, choosesPersistentModeFromTwoRadioButtons)
{
    EXPECT_THAT(cellTags(window, "persistentModeMatrix"), ElementsAre(74, 75));
    auto *matrix = window.find<NSMatrix>(QStringLiteral("persistentModeMatrix"));
    for (QAbstractButton *cell : matrix->cells()) {
        EXPECT_TRUE(qobject_cast<QRadioButton *>(cell));
        performClick(cell);
        expectOnly(QStringLiteral("updatePersistentState:"), matrix);
        EXPECT_EQ(matrix->selectedCell(), cell);
    }
}

TEST_F(TheWindow, showsWhatAnAbsentValueMeansWhereNothingIsReadBack)
{
    EXPECT_EQ(state(window.find(QStringLiteral("doubleClickActivateCheckBox"))), NSOffState);
    EXPECT_EQ(selectedItemTag(window.find(QStringLiteral("cycleOrderPopup"))), 51);
    EXPECT_EQ(tag(window.find<NSMatrix>(QStringLiteral("persistentModeMatrix"))->selectedCell()), 74);
    EXPECT_TRUE(isEnabled(window.find(QStringLiteral("defaultColorButton"))));
}

TEST_F(TheWindow, hasAHiddenMatrixWithACellForEachModifier)
{
    window.show();
    window.showPage(1);
    auto *matrix = window.find<NSMatrix>(QStringLiteral("modifierCheckboxMatrix"));
    EXPECT_FALSE(matrix->isVisible());
    EXPECT_THAT(cellTags(window, "modifierCheckboxMatrix"), ElementsAre(0, 0x200, 0x1000, 0x800, 0x100));
    performClick(matrix->cellWithTag(0));
    expectOnly(QStringLiteral("updateButtonStates:"), matrix);
}

TEST_F(TheWindow, boundsTheSlidersByTheirUnits)
{
    const auto *delay = window.find<FloatSlider>(QStringLiteral("repeatDelaySlider"));
    EXPECT_EQ(delay->minimum(), 0.0);
    EXPECT_EQ(delay->maximum(), 2.0);
    EXPECT_EQ(delay->value(), 0.0);
    const auto *rate = window.find<FloatSlider>(QStringLiteral("repeatRateSlider"));
    EXPECT_EQ(rate->minimum(), 0.0);
    EXPECT_EQ(rate->maximum(), 1.0);
    EXPECT_EQ(rate->value(), 1.0);
}

TEST_F(TheWindow, hasAHelpButtonOnEachPageThatNamesItsTopic)
{
    const std::vector<std::vector<int>> topics{{0}, {1, 2}, {4}, {3}, {12}, {10}};
    for (int index = 0; index < int(topics.size()); ++index) {
        std::vector<int> found;
        for (QToolButton *button : window.page(index)->findChildren<QToolButton *>()) {
            QAction *action = button->defaultAction();
            if (!action)
                continue;
            found.push_back(tag(action));
            EXPECT_EQ(tag(button), noTag);
            button->click();
            expectOnly(QStringLiteral("displayHelp:"), action);
        }
        EXPECT_EQ(found, topics[size_t(index)]) << index;
    }
}

TEST_F(TheWindow, hasBetaNotesInAWindowOfTheirOwn)
{
    auto *betaWindow = window.find<QDialog>(QStringLiteral("betaWindow"));
    EXPECT_EQ(betaWindow->parentWidget(), window.root());
    window.show();
    EXPECT_FALSE(betaWindow->isVisible());
    performClick(betaWindow->findChild<QCheckBox *>(QStringLiteral("hideBetaNotesButton")));
    expectOnly(QStringLiteral("hideBetaNotes:"), window.find(QStringLiteral("hideBetaNotesButton")));
    betaWindow->show();
    performClick(window.find(QStringLiteral("closeBetaButton")));
    EXPECT_FALSE(betaWindow->isVisible());
}

} // namespace
