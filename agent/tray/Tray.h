#pragma once

#include "agent/tray/TrayMenu.h"

#include <QObject>
#include <memory>

class TrayItem;
class TrayMenuObject;
class TrayPlace;

/// Lumaroo among the desktop's status icons, with a tooltip and a menu.
///
/// Nothing waits for the desktop here. Where it has no place for such icons, or that place goes and comes again, the
/// icon is there as soon as the place is. At rest nothing but a change of that wakes it up. The texts are in the user's
/// language.
class Tray : public QObject
{
    Q_OBJECT

public:
    Tray();
    ~Tray() override;

    /// Shows the icon, and what it tells from now on.
    void show(const TrayView &view);
    /// Takes the icon away; harmless where there is none.
    void hide();

Q_SIGNALS:
    /// By the menu, or a click on the icon. Told when the desktop has its answer.
    void chosen(TrayChoice choice);

private:
    // Nothing is on the bus unless there is something to show.
    std::unique_ptr<TrayItem> item_;
    std::unique_ptr<TrayMenuObject> menu_;
    std::unique_ptr<TrayPlace> place_;
};
