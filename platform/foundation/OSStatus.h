#pragma once

#include <QtGlobal>

/// The result of a platform call: zero for success.
using OSStatus = qint32;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus fnfErr = -43; ///< no such file, folder or bundle
inline constexpr OSStatus paramErr = -50; ///< an argument that no call can use
inline constexpr OSStatus procNotFound = -600; ///< no such process, or no further one
