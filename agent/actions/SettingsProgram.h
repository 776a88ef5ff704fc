#pragma once

#include <QString>
#include <QtGlobal>

/// Opens the settings at the pane whose bundle this agent lies in; where they are open, they come to the front as they
/// are. The time is the display's own of the key that asks. Returns why they cannot be opened, as a clause; empty once
/// their program runs.
QString openSettings(quint32 time);
