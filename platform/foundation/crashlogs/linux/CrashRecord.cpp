#include "platform/foundation/crashlogs/linux/CrashRecord.h"

#include "platform/foundation/crashlogs/CrashRecordSeparator.h"
#include "platform/foundation/crashlogs/linux/CrashText.h"
#include "platform/foundation/crashlogs/linux/LoadedModules.h"
#include "platform/foundation/crashlogs/linux/SavedRegisters.h"
#include "platform/foundation/crashlogs/linux/SignalNames.h"

#include <array>
#include <cstring>
#include <fcntl.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>
#include <unwind.h>

namespace {

constexpr unsigned digitsOfAddress = sizeof(uintptr_t) * 2;

CrashText text;
LoadedModules modules;

/// A path in the home folder; what does not fit is cut off, and then there is no log.
class PathText
{
public:
    explicit PathText(const CrashLogFacts &facts) { add(facts.home).add("/").add(facts.folder); }
    PathText &add(const char *part)
    {
        const size_t length = ::strnlen(part, characters_.size() - 1 - length_);
        std::memcpy(characters_.data() + length_, part, length);
        length_ += length;
        return *this;
    }
    PathText &add(uint64_t number) { return number < 10 ? addDigit(number) : add(number / 10).addDigit(number % 10); }
    char *data() { return characters_.data(); }

private:
    PathText &addDigit(uint64_t digit)
    {
        const char digits[] = {char('0' + digit), '\0'};
        return add(digits);
    }
    std::array<char, 4096> characters_ = {};
    size_t length_ = 0;
};

void makeFolders(const CrashLogFacts &facts)
{
    PathText path(facts);
    for (char *slash = path.data() + std::strlen(facts.home) + 1; (slash = std::strchr(slash, '/')); ++slash) {
        *slash = '\0';
        ::mkdir(path.data(), S_IRWXU);
        *slash = '/';
    }
}

int openForWriting(const char *path, int flags)
{
    // A pipe or a link that somebody has put there shall neither hold us up nor lead us elsewhere.
    return ::open(path, O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | flags, S_IRUSR | S_IWUSR);
}

int openOneFile(const CrashLogFacts &facts)
{
    PathText path(facts);
    return openForWriting(path.add(facts.program).add(".crash.log").data(), O_APPEND);
}

/// Two crashes of one second and process number do not come about but for a clock that was set back.
int openFileForThis(const CrashLogFacts &facts, const Crash &crash)
{
    constexpr unsigned mostNames = 100;
    int descriptor = -1;
    for (unsigned i = 0; i < mostNames && descriptor < 0; ++i) {
        PathText path(facts);
        path.add(facts.program).add("_").add(uint64_t(crash.time.tv_sec)).add("-").add(uint64_t(::getpid()));
        if (i > 0)
            path.add("-").add(i);
        descriptor = openForWriting(path.add(".crash").data(), O_EXCL);
    }
    return descriptor;
}

void openLog(const CrashLogFacts &facts, const Crash &crash)
{
    makeFolders(facts);
    const int descriptor = facts.hasFileForEach ? openFileForThis(facts, crash) : openOneFile(facts);
    struct stat status = {};
    const bool isFile = descriptor >= 0 && ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    text.writeTo(isFile ? descriptor : -1);
    if (!isFile)
        return;
    ::fchmod(descriptor, S_IRUSR | S_IWUSR);
    if (status.st_size > 0)
        text.add(crashRecordSeparator);
}

/// "Name:      ", in a column.
void addLabel(const char *label)
{
    constexpr size_t width = 17;
    text.add(label);
    text.add(":");
    for (size_t i = std::strlen(label) + 1; i < width; ++i)
        text.add(" ");
}

void addLine(const char *label, const char *value)
{
    addLabel(label);
    text.addAsOneLine(value);
    text.add("\n");
}

void addProgram(const CrashLogFacts &facts, const Crash &crash)
{
    addLabel("Process");
    text.add(facts.program);
    text.add(" [");
    text.addNumber(uint64_t(::getpid()));
    text.add("]\n");
    addLine("Identifier", facts.identifier);
    addLine("Version", facts.version);
    addLabel("Date/Time");
    text.addTime(crash.time.tv_sec);
    text.add(" +0000\n");
}

void addPlugIns(const CrashLogFacts &, const Crash &crash)
{
    for (const char *name = crash.plugIns; *name; name += std::strlen(name) + 1) {
        text.add("PlugIn Identifier: ");
        text.addAsOneLine(name);
        text.add("\n");
    }
}

void addReason(const CrashLogFacts &, const Crash &crash)
{
    text.add("\n");
    addLabel("Signal");
    text.add(signalName(crash.signal));
    text.add(" (");
    text.addNumber(uint64_t(crash.signal));
    text.add("): ");
    text.add(signalReason(crash.information));
    text.add("\n");
    if (hasFaultAddress(crash.information)) {
        addLabel("Address");
        text.addHexadecimal(reinterpret_cast<uintptr_t>(crash.information.si_addr), digitsOfAddress);
        text.add("\n");
    }
    if (*crash.exception)
        addLine("Exception", crash.exception);
    addLabel("Thread");
    text.addNumber(uint64_t(crash.thread));
    text.add(crash.thread == ::getpid() ? " (main)\n" : "\n");
}

void addRegisters(const CrashLogFacts &, const Crash &crash)
{
    constexpr unsigned registersOfLine = 3;
    text.add("\nRegisters:");
    SavedRegister saved = {};
    for (unsigned i = 0; (saved = savedRegister(*crash.context, i)).name; ++i) {
        text.add(i % registersOfLine == 0 ? "\n" : "");
        for (size_t length = std::strlen(saved.name); length < 6; ++length)
            text.add(" ");
        text.add(saved.name);
        text.add(" ");
        text.addHexadecimal(saved.value, digitsOfAddress);
    }
    text.add("\n");
}

const char *fileName(const char *path)
{
    const char *slash = std::strrchr(path, '/');
    return slash ? slash + 1 : path;
}

void addFrame(unsigned number, uintptr_t address)
{
    text.addNumber(number, 3);
    text.add("  ");
    text.addHexadecimal(address, digitsOfAddress);
    if (const LoadedModule *module = modules.at(address)) {
        text.add("  ");
        text.add(fileName(module->path));
        text.add(" + ");
        text.addHexadecimal(address - module->begin);
    }
    text.add("\n");
}

/// Goes up the stack; our own frames come before the one that crashed.
struct Ascent
{
    uintptr_t crashedAt;
    unsigned frames; ///< written so far
    unsigned steps;
    bool isBeyondUs;
};

_Unwind_Reason_Code takeFrame(_Unwind_Context *frame, void *data)
{
    constexpr unsigned mostSteps = 256;
    auto *ascent = static_cast<Ascent *>(data);
    const uintptr_t address = _Unwind_GetIP(frame);
    if (ascent->isBeyondUs && address != 0)
        addFrame(ascent->frames++, address);
    ascent->isBeyondUs = ascent->isBeyondUs || address == ascent->crashedAt;
    return ++ascent->steps < mostSteps ? _URC_NO_REASON : _URC_END_OF_STACK;
}

void addBacktrace(const CrashLogFacts &, const Crash &crash)
{
    modules.read();
    Ascent ascent{programCounter(*crash.context), 0, 0, false};
    text.add("\nBacktrace:\n");
    addFrame(ascent.frames++, ascent.crashedAt);
    text.flush();
    // What was called is no code: nobody but its caller is known.
    if (!modules.at(ascent.crashedAt))
        addFrame(ascent.frames++, returnAddressAtEntry(*crash.context));
    _Unwind_Backtrace(takeFrame, &ascent);
}

void addPath(const CrashLogFacts &facts, const char *path)
{
    const size_t length = std::strlen(facts.home);
    const bool isInHome = length > 1 && std::strncmp(path, facts.home, length) == 0 && path[length] == '/';
    text.add(isInHome ? "~" : "");
    text.addAsOneLine(isInHome ? path + length : path);
}

void addModules(const CrashLogFacts &facts, const Crash &)
{
    text.add("\nModules:\n");
    for (const LoadedModule &module : modules) {
        text.addHexadecimal(module.begin, digitsOfAddress);
        text.add(" - ");
        text.addHexadecimal(module.end, digitsOfAddress);
        text.add("  <");
        const BuildIdentifier identifier = buildIdentifierOf(module);
        for (size_t i = 0; i < identifier.length; ++i)
            text.addByte(identifier.bytes[i]);
        text.add(">  ");
        addPath(facts, module.path);
        text.add("\n");
    }
}

using Section = void (*)(const CrashLogFacts &, const Crash &);
constexpr Section sections[] = {openLog, addProgram, addPlugIns, addReason, addRegisters, addBacktrace, addModules};

} // namespace

void prepareCrashRecord()
{
    // Our own calls are bound when we are loaded; those of the unwinder when it makes them first.
    const auto goOn = [](_Unwind_Context *frame, void *) {
        return _Unwind_GetIP(frame) ? _URC_NO_REASON : _URC_END_OF_STACK;
    };
    _Unwind_Backtrace(goOn, nullptr);
}

bool writeNextSection(const CrashLogFacts &facts, const Crash &crash)
{
    static volatile unsigned next = 0;
    if (next == std::size(sections))
        return false;
    const Section section = sections[next];
    next = next + 1;
    section(facts, crash);
    text.flush();
    return true;
}
