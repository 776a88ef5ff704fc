#pragma once

#include "platform/appkit/Export.h"

#include <QString>

/// What a control's text says without the mark of its mnemonic. Where the letter follows the text in brackets, as in
/// languages whose own signs no key has, it goes with them.
LM_APPKIT QString withoutMnemonic(QString text);
