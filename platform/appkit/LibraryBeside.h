#pragma once

#include <QString>

/// A function of a library that is loaded only where it is needed; null, with the cause, when there is none to have.
struct LoadedFunction
{
    void *address = nullptr;
    QString error;
};

/// Loads a library by its file name, from the folder that this library lies in, and looks its function up. It stays
/// loaded. For any thread.
LoadedFunction functionOfLibraryBeside(const char *library, const char *function);
/// Whether it could be: the library is there to be read. It is not loaded for that.
bool isLibraryBeside(const char *library);
