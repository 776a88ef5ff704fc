#pragma once

class NSBundle;

/// Whether this program is the settings application, in which the pane is a plug-in.
bool QBRunsInSettings();

/// The bundle whose preferences a crash report tells: the main bundle, but the pane's in the settings application. Null
/// where that is not there.
NSBundle *QBReportedBundle();

/// The bundle whose interface files, texts, name and preferences a report goes by: the main bundle, but the pane's
/// where the settings application or the pane's agent is the main one. Null where that is not there.
NSBundle *QBAppBundle();
/// The same for a given main bundle.
NSBundle *QBAppBundleOfMainBundle(NSBundle *mainBundle);
