#include "platform/foundation/keyboard/KeyboardLayout.h"

#include "platform/foundation/keyboard/linux/KeyboardConnection.h"
#include "platform/foundation/system/NSLog.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QStringView>
#include <algorithm>

namespace {

constexpr qint32 noError = 0;
constexpr qint32 parameterError = -50;
constexpr quint8 ansiKeyboard = 40;

/// The layout in use: the X server's while there is one, that of the default names otherwise.
class KeyboardLayoutSource
{
public:
    static KeyboardLayoutSource &instance();
    UCKeyboardLayoutRef currentLayout();

private:
    KeyboardLayoutSource();
    void followServer();
    void handleInput();
    void handleLoss();
    UCKeyboardLayoutRef serverLayout();
    UCKeyboardLayoutRef defaultLayout();

    XkbContext context_ = ownedContext(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    std::unique_ptr<KeyboardConnection> connection_;
    std::unique_ptr<QSocketNotifier> notifier_;
    UCKeyboardLayoutRef defaultLayout_;
};

KeyboardLayoutSource &KeyboardLayoutSource::instance()
{
    static KeyboardLayoutSource source;
    return source;
}

KeyboardLayoutSource::KeyboardLayoutSource()
{
    if (context_)
        connection_ = KeyboardConnection::open(context_);
}

/// What the server tells is read as it comes, so that it does not pile up where no key is named for long. A process
/// without a run loop does not last.
void KeyboardLayoutSource::followServer()
{
    if (notifier_ || !QCoreApplication::instance())
        return;
    notifier_ = std::make_unique<QSocketNotifier>(connection_->fileDescriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { handleInput(); });
}

void KeyboardLayoutSource::handleInput()
{
    connection_->handlePendingEvents();
    if (connection_->isLost())
        handleLoss();
}

void KeyboardLayoutSource::handleLoss()
{
    NSLog(QStringLiteral("lumaroo: keyboard layout: the X server is gone; keys are named by the default layout"));
    // Later: the notifier may be the one that calls.
    if (notifier_) {
        notifier_->setEnabled(false);
        notifier_.release()->deleteLater();
    }
    connection_ = nullptr;
}

UCKeyboardLayoutRef KeyboardLayoutSource::currentLayout()
{
    if (!context_)
        return nullptr;
    const UCKeyboardLayoutRef layout = serverLayout();
    return layout ? layout : defaultLayout();
}

UCKeyboardLayoutRef KeyboardLayoutSource::serverLayout()
{
    if (!connection_)
        return nullptr;
    followServer();
    UCKeyboardLayoutRef layout = connection_->currentLayout();
    if (!layout)
        handleLoss();
    return layout;
}

UCKeyboardLayoutRef KeyboardLayoutSource::defaultLayout()
{
    if (!defaultLayout_) {
        const XkbKeymap keymap =
            ownedKeymap(xkb_keymap_new_from_names(context_.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS));
        if (keymap)
            defaultLayout_ = std::make_shared<KeyboardLayoutData>(keymap, 0);
    }
    return defaultLayout_;
}

QString textOf(char32_t character)
{
    return character == 0 ? QString() : QString::fromUcs4(&character, 1);
}

} // namespace

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource()
{
    return KeyboardLayoutSource::instance().currentLayout();
}

UCKeyboardLayoutRef TISGetInputSourceProperty(const TISInputSourceRef &source, TISProperty property)
{
    return property == kTISPropertyUnicodeKeyLayoutData ? source : nullptr;
}

quint8 LMGetKbdType()
{
    return ansiKeyboard;
}

std::optional<VirtualKeyCode> LMVirtualKeyCodeOfKeycode(const UCKeyboardLayoutRef &layout, quint32 keycode)
{
    if (layout)
        return layout->keys().virtualKeyCodeOf(keycode);
    return keycode < evdevToX11 ? std::nullopt : virtualKeyCodeForEvdev(keycode - evdevToX11);
}

qint32 UCKeyTranslate(const UCKeyboardLayoutRef &layout, VirtualKeyCode virtualKeyCode, UCKeyAction keyAction,
    quint32 modifierKeyState, quint32 keyboardType, quint32 keyTranslateOptions, quint32 *deadKeyState,
    quint64 maxStringLength, quint64 *actualStringLength, char16_t *unicodeString)
{
    if (!layout || !deadKeyState || !actualStringLength || !unicodeString)
        return parameterError;
    const QString text = textOf(layout->character(virtualKeyCode));
    // Half of a surrogate pair is no character.
    const bool fits = quint64(text.size()) <= maxStringLength;
    *actualStringLength = fits ? quint64(text.size()) : 0;
    std::copy_n(QStringView(text).utf16(), *actualStringLength, unicodeString);
    return noError;
}
