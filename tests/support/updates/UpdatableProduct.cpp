#include "UpdatableProduct.h"

#include "ProgramResult.h"
#include "updater/core/linux/BundleExchange.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

UpdatableProduct::UpdatableProduct()
{
    leaveOutDebugInformation();
    changeInfo(pane(), {{QStringLiteral("SUPublicEDKey"), QString::fromLatin1(key.publicKey())}});
}

/// As what is published is without it; with it, packing and unpacking would take far longer.
void UpdatableProduct::leaveOutDebugInformation() const
{
    QStringList programs{QStringLiteral("-g")};
    QDirIterator files(pane(), QDir::Files | QDir::Executable | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext())
        programs += files.next();
    EXPECT_EQ(runProgram(QStringLiteral("strip"), programs).status, 0);
}

QStringList UpdatableProduct::beside() const
{
    const QDir folder(QFileInfo(pane()).path());
    QStringList names = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(QFileInfo(pane()).fileName());
    return names;
}

QString UpdatableProduct::archiveOf(int version) const
{
    const QString stage = maker_.filePath(QString::number(version));
    const QString archive = published() + QStringLiteral("/Lumaroo-%1.tar.gz").arg(version);
    EXPECT_TRUE(QDir().mkpath(stage) && QDir().mkpath(published()));
    EXPECT_EQ(runProgram(QStringLiteral("cp"), {QStringLiteral("-a"), pane(), stage}).status, 0);
    const QString bundle = stage + u'/' + QFileInfo(pane()).fileName();
    changeVersion(bundle, version);
    changeInfo(bundle, {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.1")}});
    EXPECT_EQ(runProgram(QStringLiteral("tar"),
                  {QStringLiteral("-C"), stage, QStringLiteral("-czf"), archive, QFileInfo(bundle).fileName()})
                  .status,
        0);
    return archive;
}

void UpdatableProduct::letUpdateWait(int version) const
{
    QFile archive(archiveOf(version));
    ASSERT_TRUE(archive.open(QIODevice::ReadOnly));
    const QByteArray bytes = archive.readAll();
    const FolderLock lock(places().folder());
    ASSERT_TRUE(bool(lock));
    ASSERT_TRUE(beginWaitingUpdate(places()).isNone());
    ASSERT_TRUE(archive.copy(places().archive()));
    const ExpectedUpdate expected{QString::number(version), QStringLiteral("1.1"), key.signatureOf(bytes), bytes.size(),
        LUMAROO_PLATFORM_VERSION};
    const UpdateProblem problem = completeWaitingUpdate(places(), expected);
    ASSERT_TRUE(problem.isNone()) << problem.detail.toStdString();
}

void UpdatableProduct::spoil(const QString &path) const
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(file.size() / 2));
    ASSERT_EQ(file.write("spoilt"), 6);
}
