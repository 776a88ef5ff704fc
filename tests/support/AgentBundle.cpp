#include "AgentBundle.h"

#include "AgentProgram.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace {

void replace(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

AgentBundle::AgentBundle(int version, const QString &name) : pane_(folder_.filePath(name))
{
    const QString builtPane = QDir::cleanPath(AgentProgram::builtBundle() + QStringLiteral("/../../.."));
    const bool made = QDir().mkpath(path() + QStringLiteral("/Contents/Linux"))
        && QFile::link(
            builtPane + QStringLiteral("/Contents/Frameworks"), pane_ + QStringLiteral("/Contents/Frameworks"))
        && QFile::copy(AgentProgram::builtExecutable(), executable());
    if (!made)
        qFatal("cannot copy the agent to %s", qPrintable(pane_));
    setVersion(QString::number(version));
}

QVariantMap AgentBundle::builtInfo()
{
    return NSBundle::infoDictionaryOnDisk(AgentProgram::builtBundle());
}

void AgentBundle::setVersion(const QVariant &version) const
{
    QVariantMap info = builtInfo();
    info.insert(QStringLiteral("CFBundleVersion"), version);
    setInfo(info);
}

void AgentBundle::setInfo(const QVariantMap &info) const
{
    replaceInfo(writeXMLPropertyList(info));
}

void AgentBundle::replaceInfo(const QByteArray &content) const
{
    replace(infoPath(), content);
}

void AgentBundle::replaceExecutable(const QByteArray &content) const
{
    const QFile::Permissions permissions = QFile::permissions(executable());
    replace(executable(), content);
    QFile::setPermissions(executable(), permissions);
}
