#pragma once

#include <QString>

/// Why something that the user has asked for did not come about.
struct NSError
{
    QString domain; ///< whose codes these are
    int code = 0;
    QString localizedDescription; ///< for the user, in the user's language
};
