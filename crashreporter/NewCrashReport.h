#pragma once

#include <QString>
#include <optional>

/// The report on a crash that has not been dealt with: what machine this is, the newest record of the log, and what the
/// pane's user has set. Nothing where there is none, or the crash is not the pane's.
///
/// Where no date is remembered up to which crashes have been dealt with, that is now, and is remembered.
std::optional<QString> newCrashReport();
