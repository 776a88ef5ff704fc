#pragma once

#include <cstdint>
#include <ucontext.h>

struct SavedRegister
{
    const char *name;
    uintptr_t value;
};

/// The registers of a context one by one; the name is null after the last.
SavedRegister savedRegister(const ucontext_t &context, unsigned index);
/// Where the program was.
uintptr_t programCounter(const ucontext_t &context);
/// Where a function returns to that has done nothing yet. Reads the stack, and crashes where that is no memory.
uintptr_t returnAddressAtEntry(const ucontext_t &context);
