#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

class NSBundle;
class QIODevice;

/// An interface file's text as it is built from: in the user's language.
struct InterfaceText
{
    QByteArray xml;
    QHash<QString, QString> baseClasses; ///< what the file says each class of its own extends
    QString error; ///< empty on success; one phrase in English for the log
};

/// Reads an interface file and puts the texts of the string table `nibName` in place of its own; texts marked `notr`
/// and names stay as they are.
InterfaceText readInterfaceText(QIODevice *file, const NSBundle *bundle, const QString &nibName);
