#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

class NSBundle;

// What is done with the text of an interface file beside building from it.

/// The text with the texts of the string table `nibName` in place of its own; those marked `notr` and names stay as
/// they are. Without such a table it is the same. What is no interface file does not become one.
QByteArray translatedInterface(const QByteArray &xml, const NSBundle *bundle, const QString &nibName);

/// What an interface file says each class of its own extends.
QHash<QString, QString> baseClassesIn(const QByteArray &xml);

/// Why a text is no interface file, or empty; one phrase in English for the log.
QString problemIn(const QByteArray &xml);
