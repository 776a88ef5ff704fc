#pragma once

#include <QString>

/// From now on the toolkit's own texts, as those of the colour window, are in a language. Where the system does not
/// have them in it they stay English.
void translateToolkit(const QString &language);
