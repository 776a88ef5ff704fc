#pragma once

#include "platform/appkit/controls/AddedDescription.h"

#include <QObject>
#include <QPointer>

class KeyCapField;
class NSBundle;
class QAbstractButton;
class QLineEdit;
class QWidget;

/// The hot key fields as key caps that tell the whole combination: in signs to the eye, in names to a screen reader.
/// It follows what the fields and the check boxes of the modifiers show.
class PaneKeyCaps : public QObject
{
    Q_OBJECT

public:
    PaneKeyCaps(QWidget *view, const NSBundle *bundle);

    /// The fields by row; null for one that the view does not have.
    const QList<QPointer<QLineEdit>> &fields() const { return fields_; }
    /// What is to be pressed for a row's action, in names; empty where the view has no field for it.
    QString combination(int row) const;
    /// The field of a row has its key, and says no longer that it waits for one.
    void showKey(int row);

private:
    void findFields(QWidget *view, const QString &prompt);
    void findModifiers(QWidget *view);
    void tellCombinations();
    void tellCombination(int row);
    QStringList modifiers(QString (*part)(const QAbstractButton *)) const;

    QList<QPointer<QLineEdit>> fields_;
    QList<QPointer<KeyCapField>> caps_;
    QList<AddedDescription> told_;
    QList<QPointer<QAbstractButton>> modifiers_; ///< in the order in which their signs stand
    QString hint_;
};
