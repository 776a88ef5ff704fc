#pragma once

#include "platform/appkit/Export.h"

class QByteArray;
class QImageReader;

/// Tells a reader of `data`, called before it reads, when it is to read a PNG. Left to itself it would load each
/// plug-in for other formats and ask whether that knows better.
LM_APPKIT void expectPNGIfItIsOne(QImageReader &reader, const QByteArray &data);
