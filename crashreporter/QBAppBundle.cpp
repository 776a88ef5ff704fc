#include "crashreporter/QBAppBundle.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"

namespace {

const QString hostIdentifier = QStringLiteral("com.apple.systempreferences");
constexpr int agentIsBelowPane = 3; // Contents/Resources/LumarooAgent.app

} // namespace

NSBundle *QBAppBundleOfMainBundle(NSBundle *mainBundle)
{
    NSBundle *bundle = mainBundle;
    if (bundle->bundleIdentifier() == hostIdentifier)
        bundle = NSBundle::bundleWithIdentifier(KTXLMAppID);
    if (bundle && bundle->bundleIdentifier() == KTXLMAgentID)
        bundle = NSBundle::bundleWithPath(mainBundle->bundlePath().section(u'/', 0, -1 - agentIsBelowPane));
    return bundle;
}

NSBundle *QBAppBundle()
{
    return QBAppBundleOfMainBundle(NSBundle::mainBundle());
}
