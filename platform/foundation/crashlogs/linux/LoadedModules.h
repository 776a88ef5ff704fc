#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// A file whose code is in this process's memory.
struct LoadedModule
{
    uintptr_t begin;
    uintptr_t end;
    const char *path; ///< as the kernel writes it: line ends as "\012"
};

struct BuildIdentifier
{
    std::array<unsigned char, 64> bytes;
    size_t length; ///< 0: none
};

/// What is loaded, as the kernel says; made without allocating or locking. The same room of memory each time.
class LoadedModules
{
public:
    /// Reads the list afresh. What is more than there is room for is left out.
    void read();

    const LoadedModule *begin() const { return modules_.data(); }
    const LoadedModule *end() const { return modules_.data() + count_; }
    /// The module that an address lies in, or null.
    const LoadedModule *at(uintptr_t address) const;

private:
    friend class ModuleReading;
    std::array<LoadedModule, 512> modules_;
    size_t count_ = 0;
    std::array<char, 65536> names_;
    size_t namesLength_ = 0;
};

/// Of the image in memory, which is what runs, whatever has become of the file. Memory that cannot be read does no
/// harm.
BuildIdentifier buildIdentifierOf(const LoadedModule &module);
