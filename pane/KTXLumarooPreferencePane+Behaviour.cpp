#include "pane/KTXLumarooPreferencePane.h"

#include "KTXConstants.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

enum Tag {
    HorizontalWrapTag = 30,
    VerticalWrapTag = 31,
    KeyRepeatTag = 70,
    AnimateTag = 73,
    DoubleClickActivateTag = 74,
    PersistentByDoubleClickTag = 74,
    PersistentWithoutDoubleClickTag = 75,
};

/// What an item of a pop-up stores.
struct Choice
{
    int tag;
    QString key;
    QVariant value;
};

/// In the order in which a selected item is compared with them.
const QList<Choice> &choices()
{
    static const QList<Choice> all{
        {50, KTXCycleAscending, true},
        {51, KTXCycleAscending, false},
        {52, KTXHSort, QStringLiteral("RightEdge")},
        {60, KTXHSort, QStringLiteral("Center")},
        {53, KTXHSort, QStringLiteral("LeftEdge")},
        {58, KTXHSort, QStringLiteral("LeadingEdge")},
        {54, KTXHSort, QStringLiteral("FirstSelected")},
        {55, KTXVSort, QStringLiteral("TopEdge")},
        {61, KTXVSort, QStringLiteral("Center")},
        {56, KTXVSort, QStringLiteral("BottomEdge")},
        {59, KTXVSort, QStringLiteral("LeadingEdge")},
        {57, KTXVSort, QStringLiteral("FirstSelected")},
    };
    return all;
}

bool isOn(const QObject *checkBox)
{
    return state(checkBox) != NSOffState;
}

} // namespace

void KTXLumarooPreferencePane::enableChecked(QObject *sender)
{
    switch (tag(sender)) {
    case DoubleClickActivateTag:
        activateByDoubleClick(sender);
        break;
    case AnimateTag:
        storeAndSync(KTXAnimate, isOn(sender));
        break;
    case HorizontalWrapTag:
        storeAndSync(KTXHWrap, isOn(sender));
        break;
    case VerticalWrapTag:
        storeAndSync(KTXVWrap, isOn(sender));
        break;
    case KeyRepeatTag:
        storeAndSync(KTXAutoRepeat, isOn(sender));
        setEnabled(repeatDelaySlider_, isOn(sender));
        setEnabled(repeatRateSlider_, isOn(sender));
        break;
    default:
        if (isPopUp(sender))
            storeSelectedItem(sender);
    }
}

void KTXLumarooPreferencePane::activateByDoubleClick(QObject *checkBox)
{
    const NSMatrix *matrix = persistentModeMatrix_.get();
    QObject *byDoubleClick = matrix ? matrix->cellWithTag(PersistentByDoubleClickTag) : nullptr;
    QObject *withoutDoubleClick = matrix ? matrix->cellWithTag(PersistentWithoutDoubleClickTag) : nullptr;
    CFPreferencesSetAppValue(KTXActivateDoubleClick, isOn(checkBox), KTXLMAppID);
    if (state(checkBox) == NSOnState) {
        setState(byDoubleClick, NSOnState);
        setState(withoutDoubleClick, NSOffState);
        setEnabled(withoutDoubleClick, false);
        CFPreferencesSetAppValue(KTXPersistentDoubleClick, true, KTXLMAppID);
    } else {
        // The forced choice stays: the user picks again in the matrix.
        setEnabled(withoutDoubleClick, true);
    }
    syncPrefsAndNotifyAgent();
}

void KTXLumarooPreferencePane::storeSelectedItem(QObject *popUp)
{
    for (const Choice &choice : choices()) {
        if (selectedItemTag(popUp) == choice.tag)
            storeAndSync(choice.key, choice.value);
    }
}

void KTXLumarooPreferencePane::updatePersistentState(QObject *sender)
{
    const auto *matrix = qobject_cast<NSMatrix *>(sender);
    storeAndSync(KTXPersistentDoubleClick, matrix && tag(matrix->selectedCell()) == PersistentByDoubleClickTag);
}
