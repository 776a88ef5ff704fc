#pragma once

#include "platform/foundation/Export.h"
#include "platform/foundation/OSStatus.h"

#include <cstddef>

/// Four characters, the first in the highest byte.
using OSType = quint32;

constexpr OSType fourCharCode(const char (&characters)[5])
{
    OSType code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | quint8(characters[i]);
    return code;
}

inline constexpr OSType gestaltUserVisibleMachineName = fourCharCode("mnam"); ///< the model, as a pointer (see below)
inline constexpr OSType gestaltNativeCPUtype = fourCharCode("cput"); ///< the kind of processor, mostly four characters
inline constexpr OSType gestaltProcClkSpeed = fourCharCode("pclk"); ///< in Hz; of a faster clock the low 32 bits
inline constexpr OSType gestaltPhysicalRAMSizeInMegabytes = fourCharCode("ramm"); ///< in MiB
inline constexpr OSType gestaltSystemVersion = fourCharCode("sysv"); ///< packed: SystemVersion.h
inline constexpr OSType gestaltSystemVersionMajor = fourCharCode("sys1");
inline constexpr OSType gestaltSystemVersionMinor = fourCharCode("sys2");
inline constexpr OSType gestaltSystemVersionBugFix = fourCharCode("sys3");

inline constexpr OSStatus gestaltUnknownErr = -5550; ///< this machine does not say
inline constexpr OSStatus gestaltUndefSelectorErr = -5551; ///< nothing is known by this selector

/// Asks what machine and system this is. `response` is written on success alone: 32 bits, but for the machine's name,
/// where it is the address of the length of its text (one byte), the text in UTF-8 and a byte of zero, which stay
/// valid until the name is asked for again.
///
/// The answers are the kernel's and those of /etc/os-release, below the folder $LUMAROO_SYSTEM_ROOT where that is set
/// (for tests). Main thread only.
LM_FOUNDATION OSStatus Gestalt(OSType selector, qintptr *response);

/// Reads a number of the kernel's into `size` bytes: "hw.ncpu", how many processors are in use, as 32 bits. 0, or -1
/// with errno: ENOENT for another name, ENOMEM where there is no room, EIO where this machine does not say.
LM_FOUNDATION int sysctlbyname(const char *name, void *value, size_t *size);
