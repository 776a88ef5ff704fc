#pragma once

#include "platform/foundation/crashlogs/linux/CrashHandler.h"

#include <csignal>
#include <sys/types.h>
#include <ucontext.h>

/// What is known of a crash.
struct Crash
{
    int signal;
    siginfo_t information;
    const ucontext_t *context;
    timespec time;
    pid_t thread;
    const char *exception; ///< what nobody caught; empty without
    const char *plugIns; ///< their identifiers, each ended by a zero, the last one by two
};

/// Called before any crash: what a record is made with is found from then on without the loader, which may be at work
/// when the crash comes.
void prepareCrashRecord();

/// Writes the record of a crash, one section at each call, until there is none left: a section that crashes itself is
/// taken up after by the next one. False when it is done.
bool writeNextSection(const CrashLogFacts &facts, const Crash &crash);
