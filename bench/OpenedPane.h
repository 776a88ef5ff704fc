#pragma once

#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QCoreApplication>
#include <memory>

/// The pane of a bundle, shown; not for the first time, so that it starts no agent. Null where it cannot be loaded.
inline std::unique_ptr<KTXLumarooPreferencePane> openedPane(const QString &bundlePath)
{
    CFPreferencesSetAppValue(KTXFirstLaunch, true, KTXLMAppID);
    CFPreferencesAppSynchronize(KTXLMAppID);
    NSBundle *bundle = NSBundle::bundleWithPath(bundlePath);
    auto pane = std::make_unique<KTXLumarooPreferencePane>();
    if (!pane->initWithBundle(bundle) || !pane->loadMainView())
        return nullptr;
    pane->willSelect();
    pane->mainView()->show();
    QCoreApplication::processEvents();
    return pane;
}
