#pragma once

#include <QString>

/// The path of this process's executable, also before there is an application object and after the file was replaced.
QString runningExecutablePath();
