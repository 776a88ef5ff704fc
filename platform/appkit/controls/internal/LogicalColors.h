#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>

class QWidget;

/// The colours that a control was given, drawn as they read in the palette of the moment.
///
/// Black, white and red are names: black is drawn as the palette's text, white as the ground of fields, red as a red
/// that reads. Every other colour is drawn as it is, a text colour as near to it as reads. The control's own palette
/// holds what is drawn; what was given stays here, and follows each change of the palette around the control.
class LogicalColors : public QObject
{
    Q_OBJECT

public:
    /// Those of a control, made at the first call; they go with it.
    static LogicalColors &of(QWidget *control);
    /// Null for a control that was given none.
    static const LogicalColors *existing(const QWidget *control);

    void setText(const QColor &text);
    /// The text is set to go with it.
    void setBackground(const QColor &background);

    /// Invalid while none was given.
    QColor text() const { return text_; }
    QColor background() const { return background_; }

protected:
    bool eventFilter(QObject *control, QEvent *event) override;

private:
    explicit LogicalColors(QWidget *control);

    void apply();
    QColor drawnBackground() const;
    QColor drawnText(const QColor &ground) const;

    QWidget *control_;
    QColor text_;
    QColor background_;
    bool applying_ = false;
};

/// The roles in which a kind of control has its text and its ground.
struct ColorRoles
{
    QPalette::ColorRole text;
    QPalette::ColorRole background;
};
ColorRoles colorRolesOf(const QWidget *control);
