#pragma once

#include "platform/appkit/Export.h"

#include <QString>

class QWidget;

/// What somebody else adds to a field's description for assistive tools, before whatever stands there.
class LM_APPKIT AddedDescription
{
public:
    /// Takes the place of what this has added before; an empty text is nothing. Harmless without a field.
    void set(QWidget *field, const QString &text);

private:
    QString added_;
};
