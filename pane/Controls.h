#pragma once

// The kinds of control the pane's outlets are, and the functions to use them with.

#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSMatrix.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <QTabWidget>
#include <QTextEdit>
