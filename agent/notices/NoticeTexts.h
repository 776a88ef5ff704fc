#pragma once

#include <QString>

/// A text in the user's language.
QString noticeText(const char *text);
