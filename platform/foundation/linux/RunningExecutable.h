#pragma once

#include <QString>

/// The path of this process's executable when it was first asked for, also before there is an application object.
QString runningExecutablePath();
