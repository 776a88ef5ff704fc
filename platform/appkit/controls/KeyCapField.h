#pragma once

#include "platform/appkit/Export.h"

#include <QObject>
#include <QString>

class QLineEdit;
class QPainter;
class QRect;
class QPalette;
class QColor;

/// Draws a hot key field as a key cap, with its text on the field's own ground. From its gaining the focus the field
/// says that it waits for a key, until it is told to show its key; what its text is stays as it is. It goes with the
/// field.
class LM_APPKIT KeyCapField : public QObject
{
    Q_OBJECT

public:
    /// `prompt` is what a waiting field says.
    KeyCapField(QLineEdit *field, const QString &prompt);

    bool isWaiting() const { return isWaiting_; }
    /// The field has its key; it shows it, though it goes on having the focus.
    void showKey();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void setWaiting(bool isWaiting);
    void draw() const;

    QLineEdit *field_;
    QString prompt_;
    bool isWaiting_ = false;
};

/// How far the front edge of a cap reaches below its face.
inline constexpr int keyCapEdge = 2;

/// A cap without letters. Its face is above its front edge, and has a rim of a width.
LM_APPKIT void drawKeyCap(QPainter &painter, const QRect &place, const QPalette &palette, const QColor &face,
    const QColor &rim, double rimWidth);
