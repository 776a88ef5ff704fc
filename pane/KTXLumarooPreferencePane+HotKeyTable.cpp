#include "pane/KTXLumarooPreferencePane.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"
#include "KeyCodeTranslator.h"
#include "pane/AlertOverEditor.h"
#include "pane/PaneKeys.h"
#include "pane/SuppressedAlerts.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSBeep.h"
#include "platform/appkit/colors/SystemColors.h"
#include "platform/appkit/textfields/FieldEditor.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

constexpr VirtualKeyCode keypadEnter = 76;
constexpr VirtualKeyCode leftArrow = 123;
constexpr VirtualKeyCode upArrow = 126;

QString keyName(VirtualKeyCode keyCode)
{
    return KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keyCode, 0);
}

/// What a pressed key is called: by the character it types, and a few by a sign of their own.
QString labelOfPressedKey(VirtualKeyCode keyCode)
{
    static const QMap<VirtualKeyCode, QString> signs{{49, QStringLiteral("___")}, {keypadEnter, QStringLiteral("⌅")},
        {leftArrow, QStringLiteral("←")}, {124, QStringLiteral("→")}, {125, QStringLiteral("↓")},
        {upArrow, QStringLiteral("↑")}};
    const auto sign = signs.constFind(keyCode);
    return sign == signs.cend() ? keyName(keyCode).toUpper() : *sign;
}

} // namespace

void KTXLumarooPreferencePane::buildKeyTables()
{
    defaultKeyCodes_ = std::make_shared<QList<VirtualKeyCode>>();
    for (const KTXActionKey &actionKey : KTXActionKeys()) {
        keyCodePrefNames_ += actionKey.preferenceName;
        defaultKeyCodes_->append(actionKey.defaultKeyCode);
    }
}

bool KTXLumarooPreferencePane::hotKeyIsDuplicateAtIndex(int index) const
{
    if (!keyCodes_ || index < 0 || index >= keyCodes_->size())
        return false;
    return keyCodes_->count(keyCodes_->at(index)) > 1;
}

bool KTXLumarooPreferencePane::controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor)
{
    const NSEvent event = NSApplication::sharedApplication()->currentEvent();
    const int row = tag(control);
    const bool isHotKeyField = keyCodes_ && row >= 0 && row < keyCodes_->size();
    if (isHotKeyField && event.type == NSEventType::KeyDown) {
        if (keys_)
            keys_->tellOfPress(row, event.keyCode);
        if (keyCodes_->at(row) == event.keyCode)
            return false;
        if (keyCodes_->contains(event.keyCode))
            refuseHotKey(control, fieldEditor, event.keyCode);
        else
            takeHotKey(control, event.keyCode);
    }
    refreshConflictMarkers();
    return false;
}

void KTXLumarooPreferencePane::refuseHotKey(QWidget *control, FieldEditor *fieldEditor, VirtualKeyCode keyCode)
{
    setStringValue(control, keyName(keyCodes_->at(tag(control))).toUpper());
    if (isSuppressed(KTXSuppressHKeyTaken)) {
        NSBeep();
        return;
    }
    setBackgroundColor(control, Qt::white);
    const auto withLabel = [this, label = labelOfPressedKey(keyCode)](
                               const QString &text) { return localized(text).replace(QStringLiteral("%@"), label); };
    displayOverEditor(fieldEditor, [&] {
        displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
            withLabel(QStringLiteral("%@ is already in use.")),
            withLabel(QStringLiteral("Lumaroo already has an action associated with %@. Please choose another key.")),
            KTXSuppressHKeyTaken, {});
    });
}

void KTXLumarooPreferencePane::takeHotKey(QWidget *control, VirtualKeyCode keyCode)
{
    const int row = tag(control);
    CFPreferencesSetAppValue(keyCodePrefNames_.at(row), hotKeyEntry(keyCode), KTXLMAppID);
    setStringValue(control, labelOfPressedKey(keyCode));
    setHidden(viewWithTag(mainView(), row + KTXMovementKeyCount), true);
    // The agent is told before the table changes.
    syncPrefsAndNotifyAgent();
    keyCodes_->replace(row, keyCode);
}

bool KTXLumarooPreferencePane::controlTextViewDoCommandBySelector(
    QWidget *control, FieldEditor *textView, const QString &command)
{
    const NSEvent event = NSApplication::sharedApplication()->currentEvent();
    const bool isArrow = event.keyCode >= leftArrow && event.keyCode <= upArrow;
    if (event.type == NSEventType::KeyDown && (event.keyCode == keypadEnter || isArrow)) {
        controlTextShouldBeginEditing(control, textView);
        return true;
    }
    if (command == QLatin1StringView("insertNewline:")) {
        if (event.modifierFlags & NSShiftKeyMask)
            textView->insertBacktab(control);
        else
            textView->insertTab(control);
    }
    return false;
}

FieldEditor *KTXLumarooPreferencePane::windowWillReturnFieldEditorToObject(QWidget *window, QWidget *client)
{
    const auto isIn = [client](QWidget *box) { return box && box->isAncestorOf(client); };
    const bool isPlainField = client && client->metaObject() == &QLineEdit::staticMetaObject;
    if (!isPlainField || !(isIn(movementBox_.get()) || isIn(cancelBox_.get())))
        return nullptr;
    FieldEditor *editor = FieldEditor::existingForWindow(window);
    if (!editor || editor->delegate() != client) {
        setBackgroundColor(client, Qt::white);
        return nullptr;
    }
    const QColor selected = liveColor(NSColor::selectedControlColor());
    editor->setInsertionPointColor(selected);
    setBackgroundColor(client, selected);
    setBackgroundColor(client->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly), selected);
    return nullptr;
}

void KTXLumarooPreferencePane::updateHotKeyFields()
{
    if (!keyCodes_ || !mainView())
        return;
    for (int row = 0; row < KTXMovementKeyCount; ++row)
        setStringValue(viewWithTag(mainView(), row), keyName(keyCodes_->at(row)).toUpper());
    if (refreshConflictMarkers())
        warnOfConflicts(QStringLiteral("The marked keys have multiple actions assigned to them. Please change them to "
                                       "remove the conflicts."));
}
