#pragma once

#include "pane/Controls.h"

/// The places for the controls of the pane's interface file, each named like its control, in the order in which they
/// are connected.
struct PaneOutlets
{
    Outlet<QTextEdit> helpFileView_;
    Outlet<QLabel> modifiersField_;
    Outlet<NSMatrix> modifierCheckboxMatrix_, persistentModeMatrix_;
    Outlet<QAbstractButton> shiftCheckBox_, controlCheckBox_, optionCheckBox_, commandCheckBox_;
    Outlet<QAbstractButton> doubleTapCheckBox_;
    Outlet<QLabel> appNameField_, versionField_;
    Outlet<QTextEdit> creditsField_;
    Outlet<QAbstractButton> toggleStateButton_;
    Outlet<QAbstractButton> enableHorizontalWrapButton_, enableVerticalWrapButton_;
    Outlet<QComboBox> HorizontalPopup_, VerticalPopup_;
    Outlet<QAbstractButton> keyRepeatButton_, animateButton_;
    Outlet<QSlider> repeatDelaySlider_, repeatRateSlider_;
    Outlet<QWidget> keyRepeatBox_;
    Outlet<QLabel> delayTextField_, repeatTextField_;
    Outlet<QAbstractButton> defaultColorButton_, autoUpdateButton_;
    Outlet<NSColorWell> overlayColorWell_;
    Outlet<QWidget> movementBox_, cancelBox_;
    Outlet<QTabWidget> tabbedView_;
    Outlet<QLabel> enabledState_, copyrightField_;
    Outlet<QDialog> betaWindow_;
};
