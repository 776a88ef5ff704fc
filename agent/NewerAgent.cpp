#include "agent/NewerAgent.h"

#include "KTXConstants.h"
#include "platform/foundation/Description.h"
#include "platform/foundation/NSBundle.h"
#include "platform/foundation/NSLog.h"

#include <QFileInfo>

namespace {

QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

} // namespace

QString newerAgentProgram(const QString &bundlePath, int loadedVersion)
{
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundlePath);
    if (textOf(info.value(QStringLiteral("CFBundleIdentifier"))) != KTXLMAgentID
        || intValue(info.value(QStringLiteral("CFBundleVersion"))) <= loadedVersion)
        return {};
    const QString name = textOf(info.value(QStringLiteral("CFBundleExecutable")));
    const QFileInfo program(bundlePath + QStringLiteral("/Contents/Linux/") + name);
    if (!name.contains(u'/') && program.isFile() && program.isExecutable())
        return program.filePath();
    NSLog(QStringLiteral("lumaroo: agent: the newer agent in %1 has no program that could be started; going on with "
                         "version %2")
              .arg(bundlePath)
              .arg(loadedVersion));
    return {};
}
