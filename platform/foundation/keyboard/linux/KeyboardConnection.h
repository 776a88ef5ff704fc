#pragma once

#include "platform/foundation/keyboard/linux/KeyboardLayoutData.h"
#include "platform/foundation/system/X11.h"

/// A connection to the X server that follows its keyboard: own event selection, independent of any window and toolkit.
class KeyboardConnection
{
public:
    /// Null without an X server or without its keyboard extension.
    static std::unique_ptr<KeyboardConnection> open(const XkbContext &context);

    /// The layout as it is now, or null once the server is gone.
    UCKeyboardLayoutRef currentLayout();

    int fileDescriptor() const { return xcb_get_file_descriptor(connection_.get()); }
    bool isLost() const;
    /// Takes note of what the server has told since.
    void handlePendingEvents();

private:
    KeyboardConnection(XkbContext context, XConnection connection);
    bool start();
    bool selectEvents();
    void handle(const xcb_generic_event_t *event);
    bool readKeymap();

    XkbContext context_;
    XConnection connection_;
    XkbKeymap keymap_;
    XkbState state_;
    UCKeyboardLayoutRef layout_;
    qint32 keyboard_ = -1;
    quint8 firstEvent_ = 0;
    bool isKeymapOutdated_ = false;
};
