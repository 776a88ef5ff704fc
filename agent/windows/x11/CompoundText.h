#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

/// A text that changes its encoding on the way (COMPOUND_TEXT), as far as it is Latin-1 and UTF-8. No value where it
/// has characters of others. What is cut off at its end is left out.
std::optional<QString> compoundText(QByteArrayView bytes);
