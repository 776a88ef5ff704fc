#include "TestBundle.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QXmlStreamWriter>

TestBundle::TestBundle(const QString &name) : path_(folder_.path() + u'/' + name)
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

void TestBundle::writeScript(const QString &relativePath, const QByteArray &text) const
{
    writeFile(relativePath, "#!/bin/sh\n" + text);
    QFile::setPermissions(path_ + u'/' + relativePath, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestBundle::copyProgram(const QString &relativePath, const QString &program) const
{
    const QString path = path_ + u'/' + relativePath;
    QDir().mkpath(QFileInfo(path).path());
    if (!QFile::copy(program, path))
        qFatal("cannot copy %s", qPrintable(program));
}

void TestBundle::writeStringTable(
    const QString &language, const QString &table, const QMap<QString, QString> &texts) const
{
    QByteArray source;
    QXmlStreamWriter writer(&source);
    writer.writeStartElement(QStringLiteral("TS"));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    writer.writeAttribute(QStringLiteral("language"), language);
    writer.writeStartElement(QStringLiteral("context"));
    writer.writeTextElement(QStringLiteral("name"), table);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        writer.writeStartElement(QStringLiteral("message"));
        writer.writeTextElement(QStringLiteral("source"), text.key());
        writer.writeTextElement(QStringLiteral("translation"), text.value());
        writer.writeEndElement();
    }
    writer.writeEndDocument();

    const QString base = QStringLiteral("Contents/Resources/%1.lproj/%2").arg(language, table);
    writeFile(base + QStringLiteral(".ts"), source);
    const QString release = QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lrelease");
    const QString bare = path_ + u'/' + base;
    if (QProcess::execute(release,
            {QStringLiteral("-silent"), bare + QStringLiteral(".ts"), QStringLiteral("-qm"),
                bare + QStringLiteral(".qm")})
        != 0)
        qFatal("cannot release %s", qPrintable(bare));
}
