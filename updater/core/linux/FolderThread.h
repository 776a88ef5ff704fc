#pragma once

#include <QString>
#include <functional>

/// Runs `work` in a thread that has a current folder and a file mode mask of its own, and waits for it: within it,
/// relative paths lead into `folder`, and what it creates nobody else may write. Its answer, or why it could not run.
QString runInFolder(const QString &folder, const std::function<QString()> &work);
