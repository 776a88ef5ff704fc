#pragma once

#include <QStringList>
#include <chrono>

/// Has each of these bundles that something stands beside (BesideBundle.h) see to it by its own `installer`, one after
/// the other: an update that waits takes its place, what is over goes. Starts no process otherwise.
///
/// Called before anything of the bundles is read. Blocks until each installer has ended; one that takes longer than
/// `longest` is killed, which leaves the old bundle or the new one, whole. Whatever comes of it, the bundle can be used
/// afterwards.
void finishUpdates(const QStringList &bundles, std::chrono::milliseconds longest = std::chrono::seconds(40));
