#pragma once

#include <QString>

/// What ends a reading; thrown and caught inside the readers only.
struct PropertyListDamage
{
    QString error;
    qint64 offset = -1;
};
