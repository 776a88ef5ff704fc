#include "agent/notices/KeysToPress.h"

#include "KTXAgentAnswer.h"
#include "KTXConstants.h"
#include "KeyCodeTranslator.h"
#include "agent/notices/NoticeTexts.h"

#include <algorithm>

namespace {

/// In the order in which they are read; those that work, or that work once a selection has begun.
QStringList directions(const QList<AgentHotKey> &hotKeys)
{
    QStringList names;
    for (const QString &action : {KTXLeftPref, KTXRightPref, KTXUpPref, KTXDownPref}) {
        const auto key = std::find_if(
            hotKeys.cbegin(), hotKeys.cend(), [&action](const AgentHotKey &one) { return one.action == action; });
        if (key == hotKeys.cend() || !(key->cause.isEmpty() || key->cause == KTXCauseDoublePressAlone))
            continue;
        names.append(KeyCodeTranslator::stringForKeyCodeWithModifierFlags(key->keyCode, 0));
    }
    return names;
}

} // namespace

QString keysToPress(const QVariantMap &settings, const QList<AgentHotKey> &hotKeys)
{
    const quint32 modifiers = settings.value(KTXModifierMask).toUInt();
    const QStringList keys = directions(hotKeys);
    if (modifiers == 0 || keys.isEmpty())
        return {};
    const char *const text =
        settings.value(KTXActivateDoubleClick).toBool() ? "Press %1 twice, then press %2" : "Hold %1 and press %2";
    return noticeText(text).arg(modifierGlyphs(modifiers), keys.join(u' '));
}
