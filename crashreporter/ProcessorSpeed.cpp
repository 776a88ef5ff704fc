#include "crashreporter/ProcessorSpeed.h"

QString processorSpeed(quint32 cores, quint32 megahertz)
{
    const float gigahertz = float(megahertz) / 1000;
    const QString prefix = cores == 1 ? QString() : QStringLiteral("%1x ").arg(qint32(cores));
    return prefix + QString::asprintf("%.2f", double(gigahertz));
}
