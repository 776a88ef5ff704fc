#include "agent/life/NewerAgent.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/system/NSLog.h"

#include <QFileInfo>

QString newerAgentProgram(const QString &bundlePath, int loadedVersion)
{
    const QVariantMap info = NSBundle::infoDictionaryOnDisk(bundlePath);
    if (info.value(QStringLiteral("CFBundleIdentifier")) != KTXLMAgentID
        || intValue(info.value(QStringLiteral("CFBundleVersion"))) <= loadedVersion)
        return {};
    const QFileInfo program(NSBundle::executablePathNamedBy(info, bundlePath));
    if (program.isFile() && program.isExecutable())
        return program.filePath();
    NSLog(QStringLiteral("lumaroo: agent: the newer agent in %1 has no program that could be started; going on with "
                         "version %2")
              .arg(bundlePath)
              .arg(loadedVersion));
    return {};
}
