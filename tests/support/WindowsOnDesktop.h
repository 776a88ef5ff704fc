#pragma once

#include "DesktopWindows.h"
#include "DisplayRoot.h"
#include "Wait.h"
#include "WindowOfAnotherProgram.h"
#include "agent/windows/WindowSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The desktop's windows as the agent reads them.
class WindowsOnDesktop : public testing::Test
{
public:
    /// What a reading says; it has to work.
    WindowWorld world(const WindowChoice &choice = {})
    {
        WindowFailure failure{};
        const auto world = system->read(choice, &failure);
        EXPECT_TRUE(world) << clause(failure).toStdString();
        return world.value_or(WindowWorld());
    }
    /// What it says of one window; empty where that is left out.
    WindowDescription described(quint32 windowID, const WindowChoice &choice = {})
    {
        const WindowWorld all = world(choice);
        const WindowDescription *window = all.window(windowID);
        return window ? *window : WindowDescription();
    }
    WindowIgnored ignored(const WindowOfAnotherProgram &window, const WindowChoice &choice = {})
    {
        const WindowDescription found = described(window.id(), choice);
        EXPECT_EQ(found.windowID, window.id());
        return found.windowIsIgnored;
    }

    const std::unique_ptr<WindowSystem> system = windowSystem();
};
