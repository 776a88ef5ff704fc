#pragma once

#include "pane/Controls.h"

/// The places for the controls of the pane's interface file, each named like its control.
struct PaneOutlets
{
    Outlet<QTextEdit> helpFileView_, creditsField_;
    Outlet<QLabel> modifiersField_, delayTextField_, repeatTextField_, enabledState_;
    Outlet<QLabel> appNameField_, versionField_, copyrightField_;
    Outlet<NSMatrix> modifierCheckboxMatrix_, persistentModeMatrix_;
    Outlet<QAbstractButton> shiftCheckBox_, controlCheckBox_, optionCheckBox_, commandCheckBox_, doubleTapCheckBox_;
    Outlet<QAbstractButton> toggleStateButton_, enableHorizontalWrapButton_, enableVerticalWrapButton_;
    Outlet<QComboBox> HorizontalPopup_, VerticalPopup_;
    Outlet<QAbstractButton> keyRepeatButton_, animateButton_, defaultColorButton_, autoUpdateButton_;
    Outlet<QSlider> repeatDelaySlider_, repeatRateSlider_;
    Outlet<NSColorWell> overlayColorWell_;
    Outlet<QWidget> keyRepeatBox_, movementBox_, cancelBox_;
    Outlet<QTabWidget> tabbedView_;
    Outlet<QDialog> betaWindow_;
};
