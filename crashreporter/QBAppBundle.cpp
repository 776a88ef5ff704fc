#include "crashreporter/QBAppBundle.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"

namespace {

const QString hostIdentifier = QStringLiteral("com.apple.systempreferences");
constexpr int agentIsBelowPane = 3; // Contents/Resources/LumarooAgent.app

NSBundle *reportedBundleOf(NSBundle *mainBundle)
{
    return mainBundle->bundleIdentifier() == hostIdentifier ? NSBundle::bundleWithIdentifier(KTXLMAppID) : mainBundle;
}

} // namespace

bool QBRunsInSettings()
{
    return NSBundle::mainBundle()->bundleIdentifier() == hostIdentifier;
}

NSBundle *QBReportedBundle()
{
    return reportedBundleOf(NSBundle::mainBundle());
}

NSBundle *QBAppBundleOfMainBundle(NSBundle *mainBundle)
{
    NSBundle *bundle = reportedBundleOf(mainBundle);
    if (bundle && bundle->bundleIdentifier() == KTXLMAgentID)
        bundle = NSBundle::bundleWithPath(mainBundle->bundlePath().section(u'/', 0, -1 - agentIsBelowPane));
    return bundle;
}

NSBundle *QBAppBundle()
{
    return QBAppBundleOfMainBundle(NSBundle::mainBundle());
}
