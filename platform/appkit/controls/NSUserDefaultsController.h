#pragma once

#include "platform/appkit/Export.h"

#include <QString>
#include <QVariantList>

class QObject;

/// Which stored value a control follows.
struct DefaultsBinding
{
    QString domain;
    QString key;
    /// What a pop-up's items or a matrix's cells stand for, in their order.
    QVariantList values;
    bool isNegated = false; ///< on where the stored value is false
    bool isOnceOnly = false; ///< shown when bound, and not followed
};

/// Has controls show what is stored, without their owner's help. A binding writes nothing and sends no action.
///
/// A value shows at once, and again whenever what this process sees of the domain changes
/// (NSUserDefaultsDidChangeNotification), until the control is destroyed. A value of truth counts as boolValue has it;
/// any other must be equal. Where nothing is stored, and for a value that no item has, the control goes back to the
/// state that it had when it was bound.
class LM_APPKIT NSUserDefaultsController
{
public:
    static NSUserDefaultsController *sharedUserDefaultsController();

    /// Binds the state of a check box, the selected item of a pop-up or the selected cell of a matrix; called by the
    /// loader, once for each control. False, and nothing is bound, for any other control.
    bool bindValue(QObject *control, const DefaultsBinding &binding);
    /// Binds whether a control is enabled.
    void bindEnabled(QObject *control, const DefaultsBinding &binding);
};
