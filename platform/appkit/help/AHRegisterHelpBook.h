#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/OSStatus.h"

struct FSRef;

inline constexpr OSStatus kAHInternalErr = -10790; ///< the list of registered books could not be written
inline constexpr OSStatus kAHInternalConfigErr = -10791; ///< the bundle names no help book, or has no identifier

/// Registers the help book of a bundle with the help system, so that NSHelpManager finds it by its name.
///
/// The book's name is CFBundleHelpBookName of the bundle's Info dictionary as it stands on disk. The list of registered
/// books is "RegisteredBooks" in the domain "com.apple.help": by bundle identifier, an array with a dictionary for each
/// of its books, "id" the book's name and "path" the bundle's folder. A book that is registered already keeps its place
/// there; what cannot belong into the list goes. The domain is flushed. Returns one of the statuses above, or paramErr
/// for no reference.
LM_APPKIT OSStatus AHRegisterHelpBook(const FSRef *bundle);
