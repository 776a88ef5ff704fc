#pragma once

class NSBundle;

/// The bundle whose interface files, texts, name and preferences a report goes by: the main bundle, but the pane's
/// where the settings application or the pane's agent is the main one. Null where that is not there.
NSBundle *QBAppBundle();
/// The same for a given main bundle.
NSBundle *QBAppBundleOfMainBundle(NSBundle *mainBundle);
