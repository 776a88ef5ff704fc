#include "agent/windows/WindowSystem.h"

#include "agent/windows/x11/X11WindowSystem.h"

std::unique_ptr<WindowSystem> windowSystem()
{
    return std::make_unique<X11WindowSystem>();
}
