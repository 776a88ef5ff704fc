#pragma once

#include <QtGlobal>

// What a property list may amount to, read or written.

namespace PropertyListBounds {

constexpr int maximumDepth = 128; ///< containers within containers, the outermost counted
constexpr qint64 maximumObjects = 1'000'000; ///< values and dictionary keys, each as often as it is reached
constexpr qint64 maximumBytes =
    qint64(64) * 1024 * 1024; ///< of the file, and of all text and data as often as it is reached

/// What a value amounts to when everything shared in it is counted as often as it is reached.
struct Extent
{
    qint64 objects = 0;
    qint64 bytes = 0;

    void add(const Extent &other)
    {
        objects += other.objects;
        bytes += other.bytes;
    }
    bool isWithinBounds() const { return objects <= maximumObjects && bytes <= maximumBytes; }
};

} // namespace PropertyListBounds
