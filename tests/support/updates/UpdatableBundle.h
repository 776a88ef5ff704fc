#pragma once

#include "CapturedLog.h"
#include "TarFile.h"
#include "updater/core/Signature.h"
#include "updater/core/WaitingUpdate.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A bundle of version 100 that its user may update, what a maker would publish for it, and settings of its own.
class UpdatableBundle : public testing::Test
{
protected:
    explicit UpdatableBundle(const QString &parent = QDir::tempPath());
    ~UpdatableBundle() override;

    QString bundle() const { return folder() + QStringLiteral("/Sample.prefPane"); }
    QString folder() const { return temporary_.filePath(QStringLiteral("panes")); }
    QString path(const QString &name) const { return temporary_.filePath(name); }
    UpdatePlaces places() const { return UpdatePlaces(QFileInfo(bundle()).canonicalFilePath()); }

    /// The files of a version, each of which tells it; with other entries of the Info dictionary.
    static QList<TarEntry> entriesOf(int version, const QVariantMap &info = {});
    QVariantMap keyInInfo() const;
    /// An archive of a version that names the same key.
    QByteArray archiveOf(int version, const QVariantMap &info = {}) const;
    /// What a feed would tell of an archive.
    ExpectedUpdate expected(const QByteArray &archive, int version) const;

    /// Has an update wait, as a download would, and expects that to work; or tells what comes of it.
    void prepare(int version);
    UpdateProblem prepare(const QByteArray &archive, const ExpectedUpdate &update);

    /// The version of which all files stand at the bundle's path; 0 where they are of several or one is missing.
    int wholeVersion() const { return wholeVersionAt(bundle()); }
    static int wholeVersionAt(const QString &bundlePath);
    /// What stands beside the bundle, hidden things included.
    QStringList beside() const;
    void expectOldBundleAlone() const;

    void write(const QString &absolutePath, const QByteArray &content) const;
    static QByteArray contentOf(const QString &absolutePath);

    SigningKey key = SigningKey::generated();
    CapturedLog log;

private:
    void install(int version) const;

    QTemporaryDir temporary_;
    QByteArray previousSettings_ = qgetenv("XDG_CONFIG_HOME");
};
