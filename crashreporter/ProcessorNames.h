#pragma once

#include <QString>

/// What people call the kind of processor with a native code. For one that is not known, "Unknown" with the code, and
/// with its four bytes in the machine's own order where they read as characters.
QString processorNameOf(quint32 code);
