#pragma once

#include <QString>

/// As in "2.40", or "2x 2.40" where there is more than one core: in GHz.
QString processorSpeed(quint32 cores, quint32 megahertz);
