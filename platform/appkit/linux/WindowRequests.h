#pragma once

class QWindow;

// What the window manager is asked for. The toolkit's own requests wait until a window is on screen, which one of
// another desktop is not. Without an X server these do nothing.

void askForActivation(const QWindow *window);
/// Until the window has the focus.
void askForAttention(const QWindow *window);
