#pragma once

#include <QObject>
#include <QPointer>

class KeyCapsLine;
class NSBundle;
class QWidget;

/// All keys at a glance, on the page with the help: the modifiers as caps, and a cap with its action for each key. It
/// shows what the page of the keys shows, and follows it. It finds its controls in the pane's view by their names.
class KeySheet : public QObject
{
    Q_OBJECT

public:
    KeySheet(QWidget *view, const NSBundle *bundle, QObject *parent);

private:
    void build();
    void show();
    void showModifiers();
    QString textOf(const QString &control) const;

    QPointer<QWidget> view_;
    const NSBundle *bundle_;
    QList<KeyCapsLine *> caps_; ///< of the keys, in the order of the actions
};
