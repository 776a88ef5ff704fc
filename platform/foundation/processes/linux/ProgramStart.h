#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <sys/types.h>

/// A program to be started as a session of its own.
struct ProgramStart
{
    QByteArray executable;
    QByteArrayList arguments; ///< without the program's own name
    QByteArrayList environment; ///< entries "NAME=value", added to this process's or replacing its
    int standardInput = -1; ///< a descriptor; without one the input is empty
    QByteArrayList hiddenVariables = {}; ///< names of this process's variables that the program does not get
};

struct StartedProgram
{
    pid_t process = 0;
    int error = 0; ///< errno of what failed; 0 when the program runs
};

/// Starts a program that outlives this process and is no child of it: nobody has to wait for it.
///
/// Returns when the program runs or cannot be run. It starts in the root folder, with empty standard streams, the
/// signals' default dispositions and no other descriptor of this process.
StartedProgram startProgram(const ProgramStart &start);
