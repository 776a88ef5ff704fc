#pragma once

#include "platform/foundation/propertylists/PropertyListBounds.h"

#include <QVariant>
#include <QXmlStreamReader>

/// Reads one property list in its XML form. Throws PropertyListDamage.
class XMLPropertyListReader
{
public:
    explicit XMLPropertyListReader(const QByteArray &data);

    QVariant read();

private:
    QVariant readValue(int depth);
    QVariantList readArray(int depth);
    QVariantMap readDictionary(int depth);
    QVariant readInteger();
    QVariant readReal();
    QVariant readDate();
    QVariant readData();
    QVariant readBoolean(bool value);
    QString readText();
    QString readTrimmedText();

    bool nextElement();
    void countObject();
    void require(bool condition, const char *error);
    [[noreturn]] void fail(const QString &error);
    qint64 byteOffset() const;

    const QByteArray &data_;
    QXmlStreamReader xml_;
    PropertyListBounds::Extent extent_;
};
