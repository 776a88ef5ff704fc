#pragma once

#include <QtGlobal>

// The sequential archive of a colour: its marks and limits. Tables of shared strings and of objects number what they
// hold in the order of its first appearance; everything that may be a number may also be one of the marks below.

namespace ColorArchive {

inline constexpr qint8 shortInteger = -127; // two bytes follow
inline constexpr qint8 longInteger = -126; // four bytes follow
inline constexpr qint8 realMark = -125; // four bytes follow
inline constexpr qint8 newMark = -124; // the thing itself follows and takes the next number
inline constexpr qint8 nilMark = -123;
inline constexpr qint8 endOfObject = -122;

inline constexpr int firstReservedMark = -128;
inline constexpr int lastReservedMark = -111;
inline constexpr int firstNumber = -110;

inline constexpr qint8 streamerVersion = 4;
inline constexpr qint32 systemVersion = 1000;
inline constexpr char littleEndianSignature[] = "streamtyped";
inline constexpr char bigEndianSignature[] = "typedstream";

inline constexpr char colorClass[] = "NSColor";
inline constexpr char textClass[] = "NSString";
inline constexpr char rootClass[] = "NSObject";
inline constexpr qint32 colorClassVersion = 0;
inline constexpr qint32 textClassVersion = 1;
inline constexpr qint32 rootClassVersion = 0;

inline constexpr char objectType[] = "@";
inline constexpr char namedColorType[] = "@@@";
inline constexpr char colorSpaceType[] = "c";
inline constexpr char textType[] = "+";

// No colour comes near these.
inline constexpr int maximumFallbacks = 16;
inline constexpr qsizetype maximumSize = qsizetype(64) * 1024;

} // namespace ColorArchive
