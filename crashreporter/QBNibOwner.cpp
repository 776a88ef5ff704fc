#include "crashreporter/QBNibOwner.h"

#include "crashreporter/QBAppBundle.h"
#include "platform/foundation/system/NSLog.h"

QBNibOwner::QBNibOwner() : actionsEndWith_(std::make_unique<QObject>()) { }

QBNibOwner::~QBNibOwner()
{
    // What a subclass answered with is gone already: the end of its window must not call on it.
    actionsEndWith_.reset();
}

bool QBNibOwner::init()
{
    QString failure;
    loadNibFile(
        QBAppBundle(), nibFilename(), {{NSNibOwner, this}, {NSNibTopLevelObjects, &topLevelObjects_}}, &failure);
    if (topLevelObjects_.empty()) {
        const QString cause = failure.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(failure);
        NSLog(QStringLiteral("%1: Couldn't find NIB file \"%2.nib\".").arg(className(), nibFilename()) + cause);
    }
    return !topLevelObjects_.empty();
}

QString QBNibOwner::nibFilename() const
{
    return className();
}

QString QBNibOwner::className() const
{
    return QString::fromLatin1(metaObject()->className());
}

InterfaceOwner QBNibOwner::interfaceOwner()
{
    return {actionsEndWith_.get(), className(), {}, {}, nullptr, nullptr, nullptr, nullptr};
}
