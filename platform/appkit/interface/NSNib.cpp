#include "platform/appkit/interface/NSNib.h"

#include "platform/appkit/interface/InterfaceFile.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QFile>

namespace {

template <typename Object>
Object &external(const NSExternalNameTable &table, const QString &name)
{
    const NSExternalName entry = table.value(name);
    Object *const *object = std::get_if<Object *>(&entry);
    if (!object || !*object)
        throw NSException(QStringLiteral("NSInvalidArgumentException"),
            QStringLiteral("%1 is missing in the external name table").arg(name));
    return **object;
}

bool hasInterfaceFile(const NSBundle *bundle, const QString &nibName)
{
    return bundle && QFile::exists(bundle->resourcePath() + u'/' + nibName + QStringLiteral(".ui"));
}

} // namespace

bool loadNibFile(
    const NSBundle *bundle, const QString &nibName, const NSExternalNameTable &externalNameTable, QString *failure)
{
    auto &owner = external<NSNibAwaking>(externalNameTable, NSNibOwner);
    auto &topLevelObjects = external<NSTopLevelObjects>(externalNameTable, NSNibTopLevelObjects);
    if (!hasInterfaceFile(bundle, nibName))
        return false;
    std::unique_ptr<QObject> root(loadInterfaceFile(bundle, nibName, owner.interfaceOwner(), failure));
    if (!root)
        return false;
    topLevelObjects.push_back(std::move(root));
    owner.awakeFromNib();
    return true;
}
