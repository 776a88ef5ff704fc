#pragma once

#include "platform/appkit/Export.h"
#include "platform/appkit/interface/InterfaceOwner.h"

#include <QWidget>

class NSBundle;

/// Loads <bundle>/Contents/Resources/<nibName>.ui, translates its texts from the bundle's string table `nibName`,
/// connects outlets, tags, actions and delegates with the owner, and returns the root view; the caller owns it.
///
/// An outlet is an object whose objectName an owner's outlet bears, the root included. A tag is the property `tag`
/// (combo boxes: the string list `tags`, one for each item). An action is the property `action`, performed on what the
/// user does with the control; setting a control by code performs none. A delegate is the property `delegate` with the
/// value "owner". A web view's first page is the property `mainFrameFile`. A binding is the property `binding`,
/// "domain/key", with the string list `bindingValues` for the items of a pop-up or the cells of a matrix ("true" and
/// "false" stand for the booleans) and `bindingOnceOnly` where the stored value shows when loaded and is not followed;
/// the property `enabledBinding`, with "!" before it where the opposite counts, does the same for enabled
/// (NSUserDefaultsController). An unknown selector or class, an outlet of the wrong type, or a binding that cannot be,
/// is one logged line with file and object. Returns null when the file is missing or is no interface file, with one
/// logged line, or with the line in `failure` where the caller gives a place for it.
LM_APPKIT QWidget *loadInterfaceFile(
    const NSBundle *bundle, const QString &nibName, const InterfaceOwner &owner, QString *failure = nullptr);
