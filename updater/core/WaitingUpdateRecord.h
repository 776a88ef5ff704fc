#pragma once

#include "updater/core/UpdatePlaces.h"

#include <QByteArray>
#include <optional>

/// What an update has to be, as the feed told it when it was offered.
struct ExpectedUpdate
{
    QString version;
    QString displayVersion;
    QByteArray signature;
    qint64 length = 0;
    int platformVersion = 0; ///< of the libraries that will load the bundle
};

/// The record of an update that waits: a file beside it, and what makes it one.
QByteArray recordOfWaitingUpdate(const ExpectedUpdate &expected);

/// What waits to be installed, as its record tells; nothing where there is none or it does not read.
std::optional<ExpectedUpdate> waitingUpdate(const UpdatePlaces &places);
