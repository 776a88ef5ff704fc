#pragma once

#include "platform/appkit/interface/InterfaceOwner.h"

#include <QSet>
#include <QUiLoader>

class NSBundle;

/// Builds the objects of one interface file; what it cannot build is one logged line with file and object.
class InterfaceLoader : public QUiLoader
{
    Q_OBJECT

public:
    /// `file` is the file's name for log lines. Null, with the toolkit's reason, where nothing can be built.
    static QWidget *loadInterface(const QByteArray &xml, const QString &file, const NSBundle *bundle,
        const QList<InterfaceClass> &classes, QString *reason);

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override;

private:
    InterfaceLoader(
        const QString &file, const QByteArray &xml, const NSBundle *bundle, const QList<InterfaceClass> &classes);
    QWidget *makeOwn(const QString &className, QWidget *parent) const;
    bool isKnown(const QString &className) const;
    QString classToUse(const QString &className, const QString &name) const;

    QString file_;
    QByteArray xml_;
    const NSBundle *bundle_;
    QHash<QString, InterfaceClass> ownersClasses_;
    QSet<QString> toolkitClasses_;
};
