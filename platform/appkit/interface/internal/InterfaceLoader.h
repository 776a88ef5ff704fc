#pragma once

#include <QHash>
#include <QSet>
#include <QUiLoader>

class QIODevice;

/// Builds the objects of one interface file; what it cannot build is one logged line with file and object.
class InterfaceLoader : public QUiLoader
{
    Q_OBJECT

public:
    /// `file` is the file's name for log lines, `baseClasses` what it says its own classes extend.
    static QWidget *loadInterface(
        const QByteArray &xml, const QString &file, const QString &folder, const QHash<QString, QString> &baseClasses);

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override;

private:
    explicit InterfaceLoader(const QString &file, const QHash<QString, QString> &baseClasses);
    bool isKnown(const QString &className) const;
    QString classToUse(const QString &className, const QString &name) const;

    QString file_;
    QHash<QString, QString> baseClasses_;
    QSet<QString> toolkitClasses_;
};
