#pragma once

#include <QByteArray>

/// A pointer as an object, with the encoding of its type.
struct NSValue
{
    QByteArray objCType;
    void *pointerValue = nullptr;
};
