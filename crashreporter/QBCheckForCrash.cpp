#include "crashreporter/QBCheckForCrash.h"

void QBCrashReporterCheckForCrash() { }
