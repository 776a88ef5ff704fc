#pragma once

/// What stands between two records, where one file holds all of a program's crashes.
inline constexpr char crashRecordSeparator[] = "\n\n**********\n\n";
