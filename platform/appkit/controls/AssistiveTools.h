#pragma once

#include "platform/appkit/Export.h"

class QWidget;

/// From now on assistive tools are told of groups, switches, documents and windows as such, where the toolkit alone
/// calls them nothing. Called before the first of them is shown; harmless when called again.
LM_APPKIT void describeControlsToAssistiveTools();

/// Buttons of a view with a sign before their name are called by the name alone. Called once the view is loaded; names
/// that it brings stay.
LM_APPKIT void nameControlsForAssistiveTools(QWidget *view);

/// Has assistive tools tell at once what a widget now says, since it is not where the keyboard is. Nothing comes of it
/// while the widget is not on screen.
LM_APPKIT void alertAssistiveTools(QWidget *widget);
