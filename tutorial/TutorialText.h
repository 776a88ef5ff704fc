#pragma once

#include <QString>

/// A text of the tutorial in the user's language.
QString tutorialText(const char *english);
