#pragma once

/// The pages that have code of their own, by their place in the window.
enum TabIndex { AgentTab = 0, HotKeyTab = 1 };
