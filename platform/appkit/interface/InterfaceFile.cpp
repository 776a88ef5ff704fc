#include "platform/appkit/interface/InterfaceFile.h"

#include "platform/appkit/controls/AssistiveTools.h"
#include "platform/appkit/interface/internal/InterfaceConnections.h"
#include "platform/appkit/interface/internal/InterfaceLoader.h"
#include "platform/appkit/interface/internal/InterfaceText.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/system/NSLog.h"

#include <QFile>

namespace {

QWidget *refuse(const QString &file, const QString &reason, QString *failure)
{
    const QString line = QStringLiteral("lumaroo: %1: %2").arg(file, reason);
    if (failure)
        *failure = line;
    else
        NSLog(line);
    return nullptr;
}

} // namespace

QWidget *loadInterfaceFile(
    const NSBundle *bundle, const QString &nibName, const InterfaceOwner &owner, QString *failure)
{
    const QString name = nibName + QStringLiteral(".ui");
    if (!bundle)
        return refuse(name, QStringLiteral("no bundle to load it from"), failure);
    QFile file(bundle->resourcePath() + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(file.fileName(), file.errorString(), failure);
    const QByteArray xml = file.readAll();
    describeControlsToAssistiveTools();
    QString toolkitsReason;
    QWidget *root = InterfaceLoader::loadInterface(
        translatedInterface(xml, bundle, nibName), name, bundle, owner.classes, &toolkitsReason);
    if (!root) {
        const QString problem = problemIn(xml);
        return refuse(file.fileName(), problem.isEmpty() ? toolkitsReason : problem, failure);
    }
    InterfaceConnections(name, bundle, owner).connectAll(root);
    nameControlsForAssistiveTools(root);
    return root;
}
