#include "agent/actions/Preview.h"

#include "agent/actions/x11/PreviewWindow.h"

std::unique_ptr<Preview> showPreview(const WindowDescription &window, const Monitor &monitor)
{
    auto preview = std::make_unique<PreviewWindow>(window, monitor);
    return preview->isShown() ? std::move(preview) : nullptr;
}
