#pragma once

#include <memory>

class QBCrashReporter;

// The reporters that live, of which nobody else keeps one. The list is empty before the application object goes.

QBCrashReporter *keepAlive(std::unique_ptr<QBCrashReporter> reporter);
/// From the event loop, since the reporter may be at work. One that is let go already is left alone.
void letGo(QBCrashReporter *reporter);
int livingReporters();
