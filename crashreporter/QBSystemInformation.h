#pragma once

#include <QString>

// What machine and system this is, for reports. No failure is told but by a neutral answer. Main thread only.

/// The machine's model as people call it (MachineNames.h); a null text where the machine does not say. Once found it
/// stays for the life of the process.
QString QBMachineName();

/// The kind of processor (ProcessorNames.h); a null text where the machine does not say and none was found before.
QString QBCPUName();
/// The same. With the flag what was found is not kept: the next call asks the machine again.
QString QBAutoreleasedCPUName(bool flag);

/// The clock in MHz, 0 where the machine does not say. The rate in Hz counts as a signed number of 32 bits, so that the
/// answer for one above 2147483647 Hz means nothing.
quint32 QBClockSpeed();
/// How many processors are in use; 1 where the machine does not say.
quint32 QBCountCores();
/// In MiB; 0 where the machine does not say.
quint32 QBPhysicalRAMSize();

/// The system's version in one number (gestaltSystemVersion); 0 where the system does not say.
quint32 QBSystemVersion();
/// Its parts. Above 1039 the packed number tells them no longer and each is asked for by itself: one that the system
/// does not say stays as the caller has set it.
void QBGetSystemVersionComponents(quint32 *major, quint32 *minor, quint32 *bugFix);
/// As in "12.0.0"; a major version that cannot be asked for counts as 10.
QString QBSystemVersionString();
