#pragma once

#include "platform/appkit/Export.h"
#include "platform/foundation/colors/NSColor.h"

#include <QMargins>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <optional>

class NSColorWell;
class QColorDialog;
class QWidget;

/// A window's frame in screen coordinates with y upward, origin at the lower left of the primary screen; without what
/// the window manager draws around it where that is not known. Empty for no window.
LM_APPKIT QRectF windowFrame(const QWidget *window);

/// The one colour panel of the process: not modal, with alpha. It edits the well that was clicked last.
class LM_APPKIT NSColorPanel : public QObject
{
    Q_OBJECT

public:
    static NSColorPanel *sharedColorPanel();

    /// Its frame, with y upward, also while it is not visible. Before its first showing the window manager's part is
    /// taken to be that of the process's other windows.
    QRectF frame() const;
    /// Moves the panel's lower left corner without changing its size, visible or not. Does nothing where windows cannot
    /// be placed (no X display).
    void setFrameOrigin(QPointF origin);

    /// The panel's window.
    QColorDialog *window() const { return window_; }

    /// Shows the panel, wholly on the screen of the well and with the icon of the well's window; what the user picks in
    /// it goes to this well from now on.
    void orderFrontForWell(NSColorWell *well);
    /// The well that the panel edits, or null while it is closed. Makes no panel where there is none yet.
    static NSColorWell *activeWell();
    /// Called when code has set a well's colour: the panel follows, if it is editing that well.
    static void colorWasSet(const NSColorWell *well);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    NSColorPanel();
    ~NSColorPanel() override;
    static NSColorPanel *&instance();
    QMargins frameMargins() const;
    void windowIsOnScreen();
    void bringIntoSight();
    void showColor(const NSColorRef &color);
    void giveColorToWell(const QColor &color);
    void letGoOfWell();

    QColorDialog *window_;
    QPointer<NSColorWell> activeWell_;
    std::optional<QPointF> originWhileHidden_;
    std::optional<QMargins> marginsWhenShown_;
};
