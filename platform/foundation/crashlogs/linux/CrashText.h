#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>

/// Text on its way into an open file, made without allocating.
class CrashText
{
public:
    void writeTo(int descriptor) { descriptor_ = descriptor; }
    /// Hands on what has gathered; what cannot be written is dropped.
    void flush();

    void add(const char *text);
    void add(const char *bytes, size_t length);
    /// With blanks in place of line ends and other control characters.
    void addAsOneLine(const char *text);
    void addNumber(uint64_t number, unsigned digits = 1);
    /// With "0x" and, where asked for, leading zeros.
    void addHexadecimal(uint64_t number, unsigned digits = 1);
    /// Two hexadecimal digits.
    void addByte(unsigned char byte);
    /// As in "2026-01-31 23:59:59", in universal time.
    void addTime(time_t time);

private:
    void addCharacter(char character);

    std::array<char, 4096> characters_ = {};
    size_t count_ = 0;
    int descriptor_ = -1;
};
