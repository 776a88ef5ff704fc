#pragma once

#include <QString>

/// A text in the user's language.
QString actionText(const char *text);
