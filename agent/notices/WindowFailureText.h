#pragma once

#include "agent/windows/WindowFailure.h"

/// Whole sentences in the user's language.
QString windowFailureText(WindowFailure failure);
