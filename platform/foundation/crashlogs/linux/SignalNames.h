#pragma once

#include <array>
#include <csignal>

/// The signals by which a program itself fails.
inline constexpr std::array<int, 7> crashSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGTRAP, SIGABRT, SIGSYS};

const char *signalName(int signal);
/// Why it came, in words.
const char *signalReason(const siginfo_t &information);
bool hasFaultAddress(const siginfo_t &information);
