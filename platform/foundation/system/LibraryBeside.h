#pragma once

#include "platform/foundation/Export.h"

#include <QString>

/// A function of a library that is loaded only where it is needed; null, with the cause, when there is none to have.
struct LoadedFunction
{
    void *address = nullptr;
    QString error;
};

/// Loads a library by its file name, from the folder that the platform's libraries lie in, and looks its function up.
/// It stays loaded. For any thread.
LM_FOUNDATION LoadedFunction functionOfLibraryBeside(const char *library, const char *function);
/// Whether it could be: the library is there to be read. It is not loaded for that.
LM_FOUNDATION bool isLibraryBeside(const char *library);
