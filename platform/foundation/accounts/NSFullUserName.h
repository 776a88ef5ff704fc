#pragma once

#include "platform/foundation/Export.h"

#include <QString>

/// The name of the user whom this process belongs to, as people write it; the name of the account where the system
/// knows no other, and empty without an account. For any thread.
LM_FOUNDATION QString NSFullUserName();
