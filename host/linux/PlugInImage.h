#pragma once

#include <QString>

/// What kind of executable image a plug-in is, from its file header alone.
struct PlugInImage
{
    enum class Kind { ThisMachine, OtherMachine, NoImage };

    Kind kind = Kind::NoImage;
    QString machine; ///< the other machine's common name, or its number
};

PlugInImage readPlugInImage(const QString &path);
