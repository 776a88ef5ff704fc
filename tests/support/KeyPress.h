#pragma once

#include "platform/foundation/keyboard/VirtualKeyCodes.h"

#include <QList>
#include <QPoint>
#include <QtGlobal>

class QWidget;

// Real key presses and clicks on the X server, as a keyboard and a mouse would send them (XTEST). Keys are kernel
// (evdev) codes.

/// Presses and releases a key while `held` keys are down, and waits until the server has taken it all.
void pressKey(int evdevCode, const QList<int> &held = {});
/// The X server's window to which presses go now.
quint32 windowWithKeyboard();
/// Whether a press would come to a window now. When another window has gone, the toolkit calls this one active before
/// the server has given it the keyboard; a press goes nowhere then.
bool hasKeyboard(const QWidget *window);
void keyDown(int evdevCode);
void keyUp(int evdevCode);
enum class MouseButton : quint8 { Left = 1, Middle = 2, Right = 3 };
/// Moves the pointer to a place of the screen (in pixels) and clicks a button.
void clickAt(QPoint place, MouseButton button = MouseButton::Left);
void movePointerTo(QPoint place);
void mouseDown(MouseButton button = MouseButton::Left);
void mouseUp(MouseButton button = MouseButton::Left);
/// Turns the wheel by one notch where the pointer is.
enum class Wheel : quint8 { Up = 4, Down = 5 };
void turnWheel(Wheel direction);
