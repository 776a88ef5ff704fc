#include "TestBundle.h"

#include "platform/foundation/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestBundle::TestBundle(const QString &name) :
    path_(folder_.path() + u'/' + name)
{
    QDir().mkpath(resourcePath());
}

void TestBundle::writeInfo(const QVariantMap &info) const
{
    writeFile(QStringLiteral("Contents/Info.plist"), writeXMLPropertyList(info));
}

void TestBundle::writeFile(const QString &relativePath, const QByteArray &content) const
{
    const QString path = path_ + u'/' + relativePath;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}
