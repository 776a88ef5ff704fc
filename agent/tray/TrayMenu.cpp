#include "agent/tray/TrayMenu.h"

#include "platform/foundation/bundles/NSBundle.h"

namespace {

QString localized(const char *text)
{
    const QString key = QString::fromUtf8(text);
    return NSBundle::mainBundle()->localizedStringForKeyValueTable(key, {}, QStringLiteral("Tray"));
}

} // namespace

QList<TrayMenuItem> trayMenu(const TrayView &view)
{
    return {
        {1, localized("Lumaroo is on"), TrayChoice::OnOff, view.isOn},
        {2, {}, {}, {}},
        {3, localized("Settings"), TrayChoice::Settings, {}},
        {4, localized("Tutorial"), TrayChoice::Tutorial, {}},
        {5, {}, {}, {}},
        {6, localized("Quit Lumaroo"), TrayChoice::Quit, {}},
    };
}

std::optional<TrayChoice> trayChoice(int id)
{
    const QList<TrayMenuItem> items = trayMenu({});
    for (const TrayMenuItem &item : items) {
        if (item.id == id)
            return item.choice;
    }
    return {};
}

QString trayToolTip(const TrayView &view)
{
    return view.isOn ? view.hint : localized("Off for now. Its keys are other programs' meanwhile.");
}
