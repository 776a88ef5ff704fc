#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/interface/InterfaceOwner.h"

#include <QMap>
#include <memory>
#include <variant>
#include <vector>

class NSBundle;

/// An object that an interface file is loaded for.
class NSNibAwaking
{
public:
    virtual ~NSNibAwaking() = default;
    /// What the interface file can reach; asked once, by loadNibFile.
    virtual InterfaceOwner interfaceOwner() = 0;
    /// Everything is loaded and connected. Called once, before loadNibFile returns; what it throws goes to the caller.
    virtual void awakeFromNib() { }
};

/// The objects of an interface file that no other of its objects holds; whoever holds the list keeps them alive.
using NSTopLevelObjects = std::vector<std::unique_ptr<QObject>>;

/// What stands outside of an interface file, by the names below.
using NSExternalName = std::variant<NSNibAwaking *, NSTopLevelObjects *>;
using NSExternalNameTable = QMap<QString, NSExternalName>;
inline const QString NSNibOwner = QStringLiteral("NSOwner"); ///< an NSNibAwaking
inline const QString NSNibTopLevelObjects = QStringLiteral("NSTopLevelObjects"); ///< a list to add to

/// Loads the interface file `nibName` of a bundle for the table's owner, connects it as loadInterfaceFile does, hands
/// its objects over to the table's list, and calls awakeFromNib.
///
/// Returns false, and changes nothing, when there is no such file, which is not logged, or when it is no interface
/// file, which is one line, logged or left in `failure`. An owner and a list that are not in the table are an
/// NSException.
LM_APPKIT bool loadNibFile(const NSBundle *bundle, const QString &nibName, const NSExternalNameTable &externalNameTable,
    QString *failure = nullptr);
