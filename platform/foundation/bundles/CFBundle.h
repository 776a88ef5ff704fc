#pragma once

#include "platform/foundation/Export.h"

#include <QString>
#include <QUrl>

class NSBundle;

/// The same objects as NSBundle's; null stands for none.
using CFBundleRef = NSBundle *;

/// What NSBundle::bundleWithIdentifier finds: the loaded bundle with an identifier, or null.
LM_FOUNDATION CFBundleRef CFBundleGetBundleWithIdentifier(const QString &identifier);

/// The address of a bundle's folder, whether or not it still exists; an empty one for a null bundle.
LM_FOUNDATION QUrl CFBundleCopyBundleURL(const NSBundle *bundle);
