#include "agent/tray/Tray.h"

#include "agent/tray/linux/TrayItem.h"
#include "agent/tray/linux/TrayMenuObject.h"
#include "agent/tray/linux/TrayPlace.h"

Tray::Tray() = default;

Tray::~Tray()
{
    hide();
}

void Tray::show(const TrayView &view)
{
    if (place_) {
        item_->show(view);
        menu_->show(view);
        return;
    }
    item_ = std::make_unique<TrayItem>(view);
    menu_ = std::make_unique<TrayMenuObject>(view);
    // Queued: what is chosen may take the icon away.
    const auto choose = [this](std::optional<TrayChoice> choice) {
        if (choice)
            Q_EMIT chosen(*choice);
    };
    connect(
        item_.get(), &TrayItem::activated, this, [choose] { choose(TrayChoice::Settings); }, Qt::QueuedConnection);
    connect(
        menu_.get(), &TrayMenuObject::clicked, this, [choose](int id) { choose(trayChoice(id)); },
        Qt::QueuedConnection);
    // Last: whoever sees the icon must find what it tells.
    place_ = std::make_unique<TrayPlace>();
}

void Tray::hide()
{
    place_.reset();
    menu_.reset();
    item_.reset();
}
