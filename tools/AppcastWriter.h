#pragma once

#include "updater/core/AppcastItem.h"

#include <QList>

/// A feed with these versions, newest first, as readAppcast() reads it.
struct AppcastToWrite
{
    QString title;
    QUrl link; ///< of the product's page
    QList<AppcastItem> items;
};

QByteArray writeAppcast(const AppcastToWrite &appcast);
