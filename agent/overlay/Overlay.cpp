#include "agent/overlay/Overlay.h"

#include "agent/overlay/x11/XOverlay.h"
#include "platform/foundation/system/NSLog.h"

namespace {

/// For a session in which nothing can be drawn.
class NoOverlay : public LayeredOverlay
{
public:
    explicit NoOverlay(bool isLost) : isLost_(isLost) { }

    void setStyle(const OverlayStyle &) override { }
    void showOverlay(const OverlayView &) override { }
    void hideOverlay() override { }
    void showBelow(quint32) override { }
    bool isLost() override { return isLost_; }

private:
    const bool isLost_;
};

} // namespace

std::unique_ptr<LayeredOverlay> overlay()
{
    QString failure;
    if (auto display = MarkDisplay::open(&failure))
        return std::make_unique<XOverlay>(std::move(display));
    if (!failure.isEmpty())
        NSLog(QStringLiteral("lumaroo: agent: selected windows are not marked: %1").arg(failure));
    // What a display lacks it will not have later.
    return std::make_unique<NoOverlay>(failure.isEmpty());
}
