#pragma once

#include "platform/foundation/colors/NSColor.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// A colour archive as it was found in the wild, with what it holds.
struct ColorSample
{
    QByteArray id;
    QByteArray archive;
    NSColorSpace colorSpace;
    ByteOrder byteOrder;
    QString catalog;
    QString name;
    QList<float> components; ///< of a named colour: of its fallback, a calibrated white
};

/// The samples of tests/data/color_samples.tsv.
const QList<ColorSample> &colorSamples();
/// Whether a colour is the one that a sample holds, in kind, names and components.
bool isColorOf(const ColorSample &sample, const NSColorRef &color);
/// The archive of a sample; empty for an unknown one.
QByteArray colorSample(const QByteArray &id);
/// The archive of the system's own selectedTextBackgroundColor, as it is always written.
QByteArray systemColorArchive();
