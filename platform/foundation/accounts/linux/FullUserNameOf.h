#pragma once

#include "platform/foundation/Export.h"

#include <QString>

/// The user's name by what the system's list of accounts has of them: the account's name and its comment.
LM_FOUNDATION QString fullUserNameOf(const QString &account, const QString &comment);
