#pragma once

#include "InstalledProduct.h"
#include "SettingsProgram.h"

#include <QVariantMap>

/// The whole product with its keys shown in the real settings, driven by a user without a mouse; what each step changes
/// in the settings file is compared as a whole.
class ProductOnHotKeyPage : public InstalledProduct
{
protected:
    static QVariantMap domain();
    static QVariantMap hotKey(int keyCode);

    /// The settings with the pane, and the agent that their first run starts. Where something is wrong already, the
    /// sheet about it is up, too.
    void open(int windows = 1);
    /// Opens the settings once more, when they have been quit.
    void openAgain(int windows = 1);
    /// Turns from the first page to the keys; `windows` is then 2 where that shows a sheet.
    void turnToKeys(int windows = 1);
    /// From the tabs over the four modifiers to the key for up; further tabs go to those for left, under, right, down.
    void goToKeyForUp() { pressTab(5); }
    void pressTab(int times);
    void quit();

    /// With the keyboard: the sheet's check box is ticked, or not, and the sheet is closed.
    void suppressAndClose();
    void closeSheet();

    void remember();
    /// Since remember() nothing was stored and nothing announced.
    void expectNothingStored();
    /// Since remember() the file holds exactly this more, it has been announced once, and the running agent has read
    /// it.
    void expectStored(const QString &key, const QVariant &value, const QJsonValue &agentsValue);
    void expectStored(const QString &key, int keyCode);
    /// The same for something that the agent has no use for.
    void expectStoredAndAnnounced(const QString &key, const QVariant &value);

    std::unique_ptr<SettingsProgram> settings;
    QVariantMap before;

private:
    void launch(int windows);
};
