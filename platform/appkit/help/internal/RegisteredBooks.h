#pragma once

#include <QStringList>
#include <QVariantMap>

// The help system's list of registered books, in its own settings domain.

/// Records a book at the place that its name has in its bundle's entry, or at the end of that, and flushes the domain;
/// false when that fails.
bool recordBook(const QString &name, const QString &identifier, const QString &bundlePath);

/// The bundles that have registered a book of this name: where each was then, and after that where a bundle of its
/// identifier is loaded from.
QStringList bundlesOfBook(const QString &name);

/// A text of a dictionary; empty where there is none or something else.
QString textIn(const QVariantMap &dictionary, const QString &key);
