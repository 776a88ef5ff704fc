#include "updater/UpdateEngine.h"

UpdateEngine::~UpdateEngine() = default;
