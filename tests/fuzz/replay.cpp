// Stands in for a fuzzer: gives a fuzz target each of the files that it is told once. What the target finds ends the
// program.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size);

int main(int argumentCount, char **arguments)
{
    for (int i = 1; i < argumentCount; ++i) {
        std::printf("%s\n", arguments[i]);
        std::fflush(stdout);
        std::ifstream file(arguments[i], std::ios::binary);
        if (!file) {
            std::fputs("replay: cannot be read\n", stderr);
            return 1;
        }
        const std::string seed(std::istreambuf_iterator<char>(file), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(seed.data()), seed.size());
    }
    if (argumentCount > 1)
        return 0;
    std::fputs("usage: replay FILE...\n", stderr);
    return 1;
}
