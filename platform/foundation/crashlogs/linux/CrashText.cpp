#include "platform/foundation/crashlogs/linux/CrashText.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

constexpr char digitCharacters[] = "0123456789abcdef";
constexpr unsigned mostDigits = 20; // of 64 bits in decimal

struct Day
{
    int64_t year;
    unsigned month;
    unsigned day;
};

/// The date of a day since 1970, counted in years that begin in March, so that a leap day is a year's last.
Day dayAt(int64_t daysSince1970)
{
    constexpr int64_t daysFromYear0 = 719468;
    constexpr int64_t daysIn400Years = 146097;
    const int64_t days = daysSince1970 + daysFromYear0;
    const int64_t era = days / daysIn400Years;
    const auto dayOfEra = unsigned(days - era * daysIn400Years);
    const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned monthFromMarch = (5 * dayOfYear + 2) / 153;
    const unsigned month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    return {era * 400 + yearOfEra + (month <= 2 ? 1 : 0), month, dayOfYear - (153 * monthFromMarch + 2) / 5 + 1};
}

} // namespace

void CrashText::flush()
{
    size_t written = 0;
    while (written < count_) {
        const ssize_t result = ::write(descriptor_, characters_.data() + written, count_ - written);
        if (result < 0 && errno == EINTR)
            continue;
        if (result <= 0)
            break;
        written += size_t(result);
    }
    count_ = 0;
}

void CrashText::addCharacter(char character)
{
    if (count_ == characters_.size())
        flush();
    characters_[count_++] = character;
}

void CrashText::add(const char *text)
{
    add(text, std::strlen(text));
}

void CrashText::add(const char *bytes, size_t length)
{
    for (size_t i = 0; i < length; ++i)
        addCharacter(bytes[i]);
}

void CrashText::addAsOneLine(const char *text)
{
    for (; *text; ++text) {
        const auto character = static_cast<unsigned char>(*text);
        addCharacter(character < ' ' || character == 0x7f ? ' ' : *text);
    }
}

void CrashText::addNumber(uint64_t number, unsigned digits)
{
    std::array<char, mostDigits> reversed;
    unsigned count = 0;
    for (; (number > 0 || count < digits) && count < mostDigits; number /= 10)
        reversed[count++] = digitCharacters[number % 10];
    while (count > 0)
        addCharacter(reversed[--count]);
}

void CrashText::addHexadecimal(uint64_t number, unsigned digits)
{
    add("0x");
    unsigned count = 1;
    while (count < 16 && number >> (4 * count) != 0)
        ++count;
    for (count = count < digits ? digits : count; count > 0; --count)
        addCharacter(digitCharacters[number >> (4 * (count - 1)) & 0xf]);
}

void CrashText::addByte(unsigned char byte)
{
    addCharacter(digitCharacters[byte >> 4]);
    addCharacter(digitCharacters[byte & 0xf]);
}

void CrashText::addTime(time_t time)
{
    constexpr int64_t secondsOfDay = 86400;
    const Day day = dayAt(int64_t(time) / secondsOfDay);
    const auto seconds = uint64_t(int64_t(time) % secondsOfDay);
    addNumber(uint64_t(day.year), 4);
    add("-");
    addNumber(day.month, 2);
    add("-");
    addNumber(day.day, 2);
    add(" ");
    addNumber(seconds / 3600, 2);
    add(":");
    addNumber(seconds / 60 % 60, 2);
    add(":");
    addNumber(seconds % 60, 2);
}
