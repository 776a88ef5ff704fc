// Stores the pixels of a window, which come as memory on its standard input, as a picture. The agent runs it: what
// takes long does not hold up the agent, and what goes wrong does not end it.

#include "agent/actions/screenshot/PictureFile.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

enum Argument { Program, Folder, Name, FirstNumber };
constexpr int numbers = 9;

bool readNumbers(char **texts, std::array<uint32_t, numbers> &values)
{
    for (int place = 0; place < numbers; ++place) {
        const char *const text = texts[place], *const end = text + std::strlen(text);
        const auto result = std::from_chars(text, end, values[size_t(place)]);
        if (result.ec != std::errc() || result.ptr != end)
            return false;
    }
    return true;
}

/// Null, with errno set, where the input is no memory of that length.
const uint8_t *pixelsOfInput(const PixelForm &form)
{
    struct stat status = {};
    if (!form.isSound() || ::fstat(STDIN_FILENO, &status) != 0 || status.st_size < off_t(form.length())) {
        errno = EINVAL;
        return nullptr;
    }
    void *memory = ::mmap(nullptr, form.length(), PROT_READ, MAP_SHARED, STDIN_FILENO, 0);
    return memory == MAP_FAILED ? nullptr : static_cast<const uint8_t *>(memory);
}

std::string store(const PixelForm &form, const std::string &folder, const std::string &name)
{
    const uint8_t *pixels = pixelsOfInput(form);
    if (!pixels || !makeFolder(folder))
        return {};
    NewFile file(folder);
    PixelReading reading(form, pixels);
    return file.isOpen() && writePicture(file, reading, form) ? file.publish(name, ".png") : std::string();
}

} // namespace

/// Prints the picture's path, or as a number why there is none.
int main(int argumentCount, char **arguments)
{
    std::array<uint32_t, numbers> values{};
    if (argumentCount != FirstNumber + numbers || !readNumbers(arguments + FirstNumber, values)) {
        std::fputs("screenshot: the agent runs it, with a folder, a name and nine numbers\n", stderr);
        return 2;
    }
    const auto &[width, height, rowBytes, pixelBits, red, green, blue, alpha, isLittleEndian] = values;
    const PixelForm form{width, height, rowBytes, pixelBits, red, green, blue, alpha, isLittleEndian != 0};
    const std::string path = store(form, arguments[Folder], arguments[Name]);
    if (path.empty()) {
        std::printf("%d", errno);
        return 1;
    }
    std::fputs(path.c_str(), stdout);
    return 0;
}
