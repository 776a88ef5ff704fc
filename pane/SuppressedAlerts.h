#pragma once

#include <QString>

/// Whether the user has asked not to be shown the warning of a suppression key again. Only the boolean true says so.
bool isSuppressed(const QString &suppressionKey);
