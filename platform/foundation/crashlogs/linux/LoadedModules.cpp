#include "platform/foundation/crashlogs/linux/LoadedModules.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <link.h>
#include <unistd.h>

namespace {

ssize_t readSome(int descriptor, char *buffer, size_t size)
{
    ssize_t length = ::read(descriptor, buffer, size);
    while (length < 0 && errno == EINTR)
        length = ::read(descriptor, buffer, size);
    return length;
}

/// Calls `take(line)` for each line of a file, without its end; a line that is too long is left out.
template <typename Take>
void forEachLine(int descriptor, Take take)
{
    static std::array<char, 8192> buffer;
    size_t filled = 0;
    bool isRestOfLine = false;
    for (;;) {
        const ssize_t length = readSome(descriptor, buffer.data() + filled, buffer.size() - filled);
        if (length <= 0)
            return;
        filled += size_t(length);
        size_t begin = 0;
        while (char *end = static_cast<char *>(std::memchr(buffer.data() + begin, '\n', filled - begin))) {
            *end = '\0';
            if (!isRestOfLine)
                take(buffer.data() + begin);
            isRestOfLine = false;
            begin = size_t(end - buffer.data()) + 1;
        }
        if (begin == 0 && filled == buffer.size()) {
            isRestOfLine = true;
            begin = filled;
        }
        std::memmove(buffer.data(), buffer.data() + begin, filled - begin);
        filled -= begin;
    }
}

/// Reads a hexadecimal number and moves behind it.
uintptr_t takeNumber(const char *&text)
{
    uintptr_t number = 0;
    for (;; ++text) {
        const bool isDigit = *text >= '0' && *text <= '9';
        const bool isLetter = *text >= 'a' && *text <= 'f';
        if (!isDigit && !isLetter)
            return number;
        number = number << 4 | uintptr_t(isDigit ? *text - '0' : *text - 'a' + 10);
    }
}

struct Mapping
{
    uintptr_t begin;
    uintptr_t end;
    bool isExecutable;
    const char *path; ///< empty for memory without a file
};

/// "7f5a10000000-7f5a10021000 r-xp 00000000 08:01 1234   /usr/lib/x.so".
Mapping mappingOf(const char *line)
{
    Mapping mapping = {};
    mapping.begin = takeNumber(line);
    line += *line == '-' ? 1 : 0;
    mapping.end = takeNumber(line);
    for (int column = 1; column < 5; ++column) {
        while (*line == ' ')
            ++line;
        if (column == 1)
            mapping.isExecutable = std::strlen(line) > 2 && line[2] == 'x';
        while (*line && *line != ' ')
            ++line;
    }
    while (*line == ' ')
        ++line;
    mapping.path = line;
    return mapping;
}

/// Reads this process's memory as a file, so that a wrong address is an error and no crash.
class OwnMemory
{
public:
    OwnMemory() : descriptor_(::open("/proc/self/mem", O_RDONLY | O_CLOEXEC)) { }
    ~OwnMemory() { ::close(descriptor_); }
    OwnMemory(const OwnMemory &) = delete;
    OwnMemory &operator=(const OwnMemory &) = delete;

    bool read(uintptr_t address, void *bytes, size_t size) const
    {
        return ::pread(descriptor_, bytes, size, off_t(address)) == ssize_t(size);
    }
    template <typename Value>
    bool read(uintptr_t address, Value *value) const
    {
        return read(address, value, sizeof *value);
    }

private:
    int descriptor_;
};

constexpr size_t roundedUp(size_t length)
{
    return (length + 3) & ~size_t(3);
}

BuildIdentifier buildIdentifierInNotes(const OwnMemory &memory, uintptr_t begin, size_t size)
{
    constexpr unsigned mostNotes = 32;
    ElfW(Nhdr) note;
    uintptr_t at = begin;
    for (unsigned i = 0; i < mostNotes && at - begin + sizeof note <= size && memory.read(at, &note); ++i) {
        const uintptr_t name = at + sizeof note;
        const uintptr_t content = name + roundedUp(note.n_namesz);
        std::array<char, 4> owner;
        const bool isOurs = note.n_type == NT_GNU_BUILD_ID && note.n_namesz == owner.size()
            && memory.read(name, owner.data(), owner.size()) && std::memcmp(owner.data(), "GNU", 4) == 0;
        BuildIdentifier identifier = {};
        if (isOurs && note.n_descsz <= identifier.bytes.size()
            && memory.read(content, identifier.bytes.data(), note.n_descsz)) {
            identifier.length = note.n_descsz;
            return identifier;
        }
        at = content + roundedUp(note.n_descsz);
    }
    return {};
}

} // namespace

/// Gathers the mappings of one file after the other.
class ModuleReading
{
public:
    explicit ModuleReading(LoadedModules &modules) : modules_(modules) { }

    void take(const Mapping &mapping)
    {
        if (!*mapping.path)
            return;
        if (!current_.path || std::strcmp(current_.path, mapping.path) != 0)
            begin(mapping);
        current_.end = mapping.end;
        isCode_ = isCode_ || mapping.isExecutable;
    }
    /// Only code is kept: which other files are in memory is nobody's business.
    void keepCode()
    {
        if (current_.path && isCode_ && modules_.count_ < modules_.modules_.size())
            modules_.modules_[modules_.count_++] = current_;
        else if (current_.path)
            modules_.namesLength_ = size_t(current_.path - modules_.names_.data());
        current_ = {};
        isCode_ = false;
    }

private:
    void begin(const Mapping &mapping)
    {
        keepCode();
        const size_t size = std::strlen(mapping.path) + 1;
        if (size > modules_.names_.size() - modules_.namesLength_)
            return;
        char *path = modules_.names_.data() + modules_.namesLength_;
        std::memcpy(path, mapping.path, size);
        modules_.namesLength_ += size;
        current_ = {mapping.begin, mapping.end, path};
    }

    LoadedModules &modules_;
    LoadedModule current_ = {};
    bool isCode_ = false;
};

void LoadedModules::read()
{
    count_ = 0;
    namesLength_ = 0;
    const int descriptor = ::open("/proc/self/maps", O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ModuleReading reading(*this);
    forEachLine(descriptor, [&reading](const char *line) { reading.take(mappingOf(line)); });
    reading.keepCode();
    ::close(descriptor);
}

const LoadedModule *LoadedModules::at(uintptr_t address) const
{
    for (const LoadedModule &module : *this) {
        if (address >= module.begin && address < module.end)
            return &module;
    }
    return nullptr;
}

BuildIdentifier buildIdentifierOf(const LoadedModule &module)
{
    const OwnMemory memory;
    ElfW(Ehdr) header;
    if (!memory.read(module.begin, &header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return {};
    // Where addresses count from: the first segment that is loaded stands at the module's beginning.
    uintptr_t bias = 0;
    bool hasBias = false;
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        if (!memory.read(module.begin + header.e_phoff + i * sizeof segment, &segment))
            return {};
        if (segment.p_type == PT_LOAD && !hasBias) {
            bias = module.begin - segment.p_vaddr;
            hasBias = true;
        }
        if (segment.p_type != PT_NOTE)
            continue;
        // The notes may stand before what is loaded first in the table; the beginning is then where they count from.
        const uintptr_t notes = hasBias ? bias + segment.p_vaddr : module.begin + segment.p_offset;
        const BuildIdentifier identifier = buildIdentifierInNotes(memory, notes, segment.p_memsz);
        if (identifier.length > 0)
            return identifier;
    }
    return {};
}
