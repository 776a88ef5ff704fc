#pragma once

#include "platform/appkit/interface/NSNib.h"

#include <QObject>

/// Loads the interface file that is named after its own class, and owns what is in it. Subclasses declare Q_OBJECT: it
/// gives them their name.
class QBNibOwner : public QObject, public NSNibAwaking
{
    Q_OBJECT

public:
    QBNibOwner();
    /// The interface file's objects go with it.
    ~QBNibOwner() override;

    /// Called once, right after construction; calls awakeFromNib. False, with a logged line, where the bundle
    /// (QBAppBundle) has no such interface file: the owner is of no use then.
    virtual bool init();
    /// The name of the class.
    virtual QString nibFilename() const;

    InterfaceOwner interfaceOwner() override;

private:
    QString className() const;

    NSTopLevelObjects topLevelObjects_;
    std::unique_ptr<QObject> actionsEndWith_;
};
