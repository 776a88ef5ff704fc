#include "pane/KTXLumarooPreferencePane.h"

#include "pane/PaneKeys.h"
#include "updater/InterfaceClasses.h"

InterfaceOwner KTXLumarooPreferencePane::interfaceOwner()
{
    InterfaceOwner owner = NSPreferencePane::interfaceOwner();
    owner.outlets = outlets();
    owner.actions = actions();
    owner.tabViewDelegate = this;
    owner.textDelegate = this;
    owner.windowDelegate = this;
    owner.frameLoadDelegate = this;
    owner.classes = updaterInterfaceClasses();
    return owner;
}

QList<OutletEntry> KTXLumarooPreferencePane::outlets()
{
    return {
        outletEntry(QStringLiteral("helpFileView"), helpFileView_),
        outletEntry(QStringLiteral("modifiersField"), modifiersField_),
        outletEntry(QStringLiteral("modifierCheckboxMatrix"), modifierCheckboxMatrix_),
        outletEntry(QStringLiteral("persistentModeMatrix"), persistentModeMatrix_),
        outletEntry(QStringLiteral("shiftCheckBox"), shiftCheckBox_),
        outletEntry(QStringLiteral("controlCheckBox"), controlCheckBox_),
        outletEntry(QStringLiteral("optionCheckBox"), optionCheckBox_),
        outletEntry(QStringLiteral("commandCheckBox"), commandCheckBox_),
        outletEntry(QStringLiteral("doubleTapCheckBox"), doubleTapCheckBox_),
        outletEntry(QStringLiteral("appNameField"), appNameField_),
        outletEntry(QStringLiteral("versionField"), versionField_),
        outletEntry(QStringLiteral("creditsField"), creditsField_),
        outletEntry(QStringLiteral("toggleStateButton"), toggleStateButton_),
        outletEntry(QStringLiteral("enableHorizontalWrapButton"), enableHorizontalWrapButton_),
        outletEntry(QStringLiteral("enableVerticalWrapButton"), enableVerticalWrapButton_),
        outletEntry(QStringLiteral("HorizontalPopup"), HorizontalPopup_),
        outletEntry(QStringLiteral("VerticalPopup"), VerticalPopup_),
        outletEntry(QStringLiteral("keyRepeatButton"), keyRepeatButton_),
        outletEntry(QStringLiteral("animateButton"), animateButton_),
        outletEntry(QStringLiteral("repeatDelaySlider"), repeatDelaySlider_),
        outletEntry(QStringLiteral("repeatRateSlider"), repeatRateSlider_),
        outletEntry(QStringLiteral("keyRepeatBox"), keyRepeatBox_),
        outletEntry(QStringLiteral("delayTextField"), delayTextField_),
        outletEntry(QStringLiteral("repeatTextField"), repeatTextField_),
        outletEntry(QStringLiteral("defaultColorButton"), defaultColorButton_),
        outletEntry(QStringLiteral("autoUpdateButton"), autoUpdateButton_),
        outletEntry(QStringLiteral("overlayColorWell"), overlayColorWell_),
        outletEntry(QStringLiteral("movementBox"), movementBox_),
        outletEntry(QStringLiteral("cancelBox"), cancelBox_),
        outletEntry(QStringLiteral("tabbedView"), tabbedView_),
        outletEntry(QStringLiteral("enabledState"), enabledState_),
        outletEntry(QStringLiteral("copyrightField"), copyrightField_),
        outletEntry(QStringLiteral("betaWindow"), betaWindow_),
    };
}

QList<ActionEntry> KTXLumarooPreferencePane::actions()
{
    return {
        {QStringLiteral("toggleAgent:"), [this](QObject *sender) { toggleAgentAndTell(sender); }},
        {QStringLiteral("updateModifierStates:"), [this](QObject *sender) { updateModifierStates(sender); }},
        {QStringLiteral("updateButtonStates:"), [this](QObject *sender) { updateButtonStates(sender); }},
        {QStringLiteral("enableChecked:"), [this](QObject *sender) { enableChecked(sender); }},
        {QStringLiteral("updatePersistentState:"), [this](QObject *sender) { updatePersistentState(sender); }},
        {QStringLiteral("changeSlider:"), [this](QObject *sender) { changeSlider(sender); }},
        {QStringLiteral("updateColorInfo:"), [this](QObject *sender) { updateColorInfo(sender); }},
        {QStringLiteral("useSystemColor:"), [this](QObject *sender) { useSystemColor(sender); }},
        {QStringLiteral("runTutorial:"), [this](QObject *sender) { runTutorial(sender); }},
        {QStringLiteral("checkForUpdates:"), [this](QObject *sender) { checkForUpdates(sender); }},
        {QStringLiteral("autoUpdateChecked:"), [this](QObject *sender) { autoUpdateChecked(sender); }},
        {QStringLiteral("hideBetaNotes:"), [this](QObject *sender) { hideBetaNotes(sender); }},
        {QStringLiteral("displayHelp:"), [this](QObject *sender) { displayHelp(sender); }},
        {QStringLiteral("visit:"), [this](QObject *sender) { visit(sender); }},
        {QStringLiteral("feedback:"), [this](QObject *sender) { feedback(sender); }},
        {QStringLiteral("orderFrontFeedbackWindow:"), [this](QObject *sender) { orderFrontFeedbackWindow(sender); }},
        {QStringLiteral("useFreeModifiers:"), [this](QObject *) { useFreeModifiers(); }},
        {QStringLiteral("restoreAllKeys:"), [this](QObject *) { keys_->restoreAll(); }},
        {QStringLiteral("undoRestoringKeys:"), [this](QObject *) { keys_->undo(); }},
        {QStringLiteral("toggleStartAtLogin:"), [this](QObject *sender) { toggleStartAtLogin(sender); }},
    };
}
