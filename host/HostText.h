#pragma once

#include <QString>

/// A text of the host's own window in the user's language.
QString hostText(const QString &english);
