#include "platform/foundation/bundles/CFBundle.h"

#include "platform/foundation/bundles/NSBundle.h"

CFBundleRef CFBundleGetBundleWithIdentifier(const QString &identifier)
{
    return NSBundle::bundleWithIdentifier(identifier);
}

QUrl CFBundleCopyBundleURL(const NSBundle *bundle)
{
    return bundle ? QUrl::fromLocalFile(bundle->bundlePath()) : QUrl();
}
