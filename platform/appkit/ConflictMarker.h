#pragma once

#include "platform/appkit/Export.h"

#include <QWidget>

/// The mark beside a hot key field whose key is used twice: an icon with a tool tip.
///
/// It keeps its place when hidden and shows no text of its own. Setting its `text` emits textSet, also for an equal
/// text: the interface file carries that on to the field that shows it.
class LM_APPKIT ConflictMarker : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit ConflictMarker(QWidget *parent = nullptr);

    QString text() const { return text_; }
    void setText(const QString &text);
    QSize sizeHint() const override;

Q_SIGNALS:
    void textSet(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString text_;
};
