#pragma once

#include <QtGlobal>

// The sequential archive of a colour: its marks and limits. Tables of shared strings and of objects number what they
// hold in the order of its first appearance; everything that may be a number may also be one of the marks below.

namespace ColorArchive {

inline constexpr qint8 ShortInteger = -127; // two bytes follow
inline constexpr qint8 LongInteger = -126; // four bytes follow
inline constexpr qint8 Real = -125; // four bytes follow
inline constexpr qint8 New = -124; // the thing itself follows and takes the next number
inline constexpr qint8 Nil = -123;
inline constexpr qint8 EndOfObject = -122;

inline constexpr int FirstReservedMark = -128;
inline constexpr int LastReservedMark = -111;
inline constexpr int FirstNumber = -110;

inline constexpr qint8 StreamerVersion = 4;
inline constexpr qint32 SystemVersion = 1000;
inline constexpr char LittleEndianSignature[] = "streamtyped";
inline constexpr char BigEndianSignature[] = "typedstream";

inline constexpr char ColorClass[] = "NSColor";
inline constexpr char TextClass[] = "NSString";
inline constexpr char RootClass[] = "NSObject";
inline constexpr qint32 ColorClassVersion = 0;
inline constexpr qint32 TextClassVersion = 1;
inline constexpr qint32 RootClassVersion = 0;

inline constexpr char ObjectType[] = "@";
inline constexpr char NamedColorType[] = "@@@";
inline constexpr char ColorSpaceType[] = "c";
inline constexpr char TextType[] = "+";

// No colour comes near these.
inline constexpr int MaximumFallbacks = 16;
inline constexpr qsizetype MaximumSize = qsizetype(64) * 1024;

} // namespace ColorArchive
