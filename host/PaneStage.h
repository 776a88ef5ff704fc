#pragma once

#include <functional>

class QWidget;

/// Where a pane's main view is shown: the host's window.
class PaneStage
{
public:
    virtual ~PaneStage() = default;
    /// Makes a view the window's content and calls `onScreen` once it really is on screen, which may be within this
    /// call.
    virtual void showView(QWidget *view, std::function<void()> onScreen) = 0;
    /// Takes a view from the screen; its `onScreen` is called no more.
    virtual void hideView(QWidget *view) = 0;
};
