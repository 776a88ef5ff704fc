#pragma once

#include "tutorial/GuidePage.h"
#include "tutorial/Preparation.h"

/// Tells what keeps the tutorial from going on, and offers what helps.
GuidePage pageOfPreparation(const Preparation &preparation);
