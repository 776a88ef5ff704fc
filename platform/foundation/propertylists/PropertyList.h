#pragma once

#include "platform/foundation/Export.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

// Property-list values are QVariants: bool, qlonglong, float (a 4-byte real), double (an 8-byte real), QString,
// QByteArray, QDateTime, QVariantList, QVariantMap. An invalid QVariant is "no value" and cannot stand inside a
// property list.

/// What came of reading a property list: the value, or why there is none.
struct PropertyListReading
{
    QVariant value;
    QString error; ///< empty on success; one phrase in English for the log
    qint64 errorOffset = -1; ///< byte at which reading stopped, -1 when it is not known

    explicit operator bool() const { return error.isEmpty(); }
};

/// Reads a binary or an XML property list.
///
/// Bounds: 64 MiB, depth 128, 1,000,000 objects counted after expansion; self-referring data is refused. Never throws,
/// never crashes on any input.
LM_FOUNDATION PropertyListReading readPropertyList(const QByteArray &data);

/// Writes the binary form. The value must be a property-list value throughout; anything else gives empty data.
LM_FOUNDATION QByteArray writeBinaryPropertyList(const QVariant &value);

/// Writes the XML form, for people to read. As above.
LM_FOUNDATION QByteArray writeXMLPropertyList(const QVariant &value);

/// Same type and same value, recursively. (`QVariant ==` takes 1 for true and 1.0f for 1.0.)
LM_FOUNDATION bool isEqualPropertyList(const QVariant &left, const QVariant &right);
