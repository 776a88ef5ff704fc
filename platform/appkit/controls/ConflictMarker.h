#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/controls/AddedDescription.h"

#include <QWidget>

/// The mark beside a hot key field whose key is used twice: an icon with a tool tip.
///
/// It keeps its place when hidden and shows no text of its own. Setting its `text` emits textSet, also for an equal
/// text: the interface file carries that on to the field that shows it. While it is not hidden, the `field` beside it
/// tells an assistive tool what the marker is called, before its own description.
class LM_APPKIT ConflictMarker : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString field READ field WRITE setField)

public:
    explicit ConflictMarker(QWidget *parent = nullptr);

    QString text() const { return text_; }
    void setText(const QString &text);
    /// The name of the field beside it, a view in the same one as the marker.
    QString field() const { return field_; }
    void setField(const QString &name) { field_ = name; }
    QSize sizeHint() const override;

Q_SIGNALS:
    void textSet(const QString &text);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void tellOfConflict(bool isConflict);

    QString text_;
    QString field_;
    AddedDescription description_; // of the field, while it tells of the conflict
};
