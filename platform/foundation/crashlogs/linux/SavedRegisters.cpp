#include "platform/foundation/crashlogs/linux/SavedRegisters.h"

#include <array>

#if defined(__x86_64__)

namespace {

struct Place
{
    const char *name;
    int index;
};

constexpr std::array<Place, 18> places{{
    {"rip", REG_RIP}, {"rsp", REG_RSP}, {"rbp", REG_RBP}, //
    {"rax", REG_RAX}, {"rbx", REG_RBX}, {"rcx", REG_RCX}, //
    {"rdx", REG_RDX}, {"rsi", REG_RSI}, {"rdi", REG_RDI}, //
    {"r8", REG_R8}, {"r9", REG_R9}, {"r10", REG_R10}, //
    {"r11", REG_R11}, {"r12", REG_R12}, {"r13", REG_R13}, //
    {"r14", REG_R14}, {"r15", REG_R15}, {"efl", REG_EFL}, //
}};

} // namespace

SavedRegister savedRegister(const ucontext_t &context, unsigned index)
{
    if (index >= places.size())
        return {};
    return {places[index].name, uintptr_t(context.uc_mcontext.gregs[places[index].index])};
}

uintptr_t programCounter(const ucontext_t &context)
{
    return uintptr_t(context.uc_mcontext.gregs[REG_RIP]);
}

uintptr_t returnAddressAtEntry(const ucontext_t &context)
{
    return *reinterpret_cast<const uintptr_t *>(context.uc_mcontext.gregs[REG_RSP]);
}

#elif defined(__aarch64__)

namespace {

constexpr std::array<const char *, 31> names{"x0", "x1", "x2", "x3", "x4", "x5", "x6", "x7", "x8", "x9", "x10", "x11",
    "x12", "x13", "x14", "x15", "x16", "x17", "x18", "x19", "x20", "x21", "x22", "x23", "x24", "x25", "x26", "x27",
    "x28", "fp", "lr"};

} // namespace

SavedRegister savedRegister(const ucontext_t &context, unsigned index)
{
    switch (index) {
    case 0:
        return {"pc", programCounter(context)};
    case 1:
        return {"sp", uintptr_t(context.uc_mcontext.sp)};
    }
    index -= 2;
    return index < names.size() ? SavedRegister{names[index], uintptr_t(context.uc_mcontext.regs[index])}
                                : SavedRegister{};
}

uintptr_t programCounter(const ucontext_t &context)
{
    return uintptr_t(context.uc_mcontext.pc);
}

uintptr_t returnAddressAtEntry(const ucontext_t &context)
{
    constexpr int linkRegister = 30;
    return uintptr_t(context.uc_mcontext.regs[linkRegister]);
}

#else

SavedRegister savedRegister(const ucontext_t &, unsigned)
{
    return {};
}

uintptr_t programCounter(const ucontext_t &)
{
    return 0;
}

uintptr_t returnAddressAtEntry(const ucontext_t &)
{
    return 0;
}

#endif
