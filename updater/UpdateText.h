#pragma once

#include "updater/Export.h"

#include <QString>

class NSBundle;

/// A text of the updater's windows in the user's language, from the bundle's string table "Updates".
LM_UPDATER QString updateText(const NSBundle *bundle, const QString &english);
