#include "agent/overlay/Overlay.h"

#include "agent/overlay/x11/XOverlay.h"
#include "platform/foundation/system/NSLog.h"

namespace {

/// For a session in which nothing can be drawn.
class NoOverlay : public LayeredOverlay
{
public:
    void setStyle(const OverlayStyle &) override { }
    void showOverlay(const OverlayView &) override { }
    void hideOverlay() override { }
    void showBelow(quint32) override { }
};

} // namespace

std::unique_ptr<LayeredOverlay> overlay()
{
    QString failure;
    if (auto display = MarkDisplay::open(&failure))
        return std::make_unique<XOverlay>(std::move(display));
    if (!failure.isEmpty())
        NSLog(QStringLiteral("lumaroo: agent: selected windows are not marked: %1").arg(failure));
    return std::make_unique<NoOverlay>();
}
