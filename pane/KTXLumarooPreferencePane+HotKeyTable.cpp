#include "pane/KTXLumarooPreferencePane.h"

#include "KTXActionKeys.h"

void KTXLumarooPreferencePane::buildKeyTables()
{
    defaultKeyCodes_ = std::make_shared<QList<int>>();
    for (const KTXActionKey &actionKey : KTXActionKeys()) {
        keyCodePrefNames_ += actionKey.preferenceName;
        defaultKeyCodes_->append(actionKey.defaultKeyCode);
    }
}

bool KTXLumarooPreferencePane::hotKeyIsDuplicateAtIndex(int index) const
{
    if (!keyCodes_)
        return false;
    const int keyCode = keyCodes_->at(index);
    return keyCodes_->count(keyCode) > 1;
}

void KTXLumarooPreferencePane::updateHotKeyFields() { }

bool KTXLumarooPreferencePane::controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor)
{
    return false;
}

bool KTXLumarooPreferencePane::controlTextViewDoCommandBySelector(
    QWidget *control, FieldEditor *textView, const QString &command)
{
    return false;
}

FieldEditor *KTXLumarooPreferencePane::windowWillReturnFieldEditorToObject(QWidget *window, QWidget *client)
{
    return nullptr;
}
