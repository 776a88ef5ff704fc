#pragma once

#include "platform/appkit/Export.h"

#include <QColor>

/// A colour between two: with a share of 0 the one, with 1 the other. It is opaque.
LM_APPKIT QColor mixed(const QColor &one, const QColor &other, float shareOfOther);
