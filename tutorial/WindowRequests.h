#pragma once

class QWidget;

// What the window manager is asked for. Without an X server these do nothing.

/// Has task bars and pagers leave a window out, which makes it none to select. Called before it is shown.
void leaveOutOfTaskBars(QWidget *window);
/// Makes a window that is shown the active one, as a task bar does for its user: the keys that led here went to the
/// agent, so the toolkit knows of no use that is recent enough.
void turnTo(QWidget *window);
