#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <chrono>

/// Sees that the program has been taken away from where it was started: deleted, or moved with the bundle around it. At
/// rest nothing wakes it up but a change of one of the folders above.
class BundleWatch : public QObject
{
    Q_OBJECT

public:
    /// An update takes the old bundle away before it brings the new one.
    static constexpr std::chrono::milliseconds patience{2000};

    /// The agent's own bundle, which may stand in a pane's.
    BundleWatch(const QString &bundlePath, const QString &program);

Q_SIGNALS:
    /// Nothing has stood there for a while. Told once.
    void removed();

private:
    void look();
    void watch();

    QStringList folders_;
    QString program_;
    QFileSystemWatcher watcher_;
    QTimer patience_; ///< runs while nothing stands there
};
