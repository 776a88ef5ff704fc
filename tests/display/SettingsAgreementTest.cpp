// What the window shows is what the agent goes by, whatever is stored.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "ColorSamples.h"
#include "KTXConstants.h"
#include "KTXHotKeyEntry.h"
#include "KTXOptions.h"
#include "KTXSettings.h"
#include "KeyCodeTranslator.h"
#include "agent/life/AgentSettings.h"
#include "pane/SuppressedAlerts.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/propertylists/Description.h"

#include <QDateTime>
#include <QTimeZone>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// One of each kind, and those near a limit.
QVariantList kindsOfValue()
{
    return {{}, true, false, qlonglong(0), qlonglong(1), qlonglong(7), qlonglong(-1), qlonglong(0x10000 + 126),
        std::numeric_limits<qlonglong>::max(), std::numeric_limits<qulonglong>::max(), 0.0F, 0.5F, 0.0, 0.5, 1.5, -0.0,
        -2.5, 256.5, 1e300, std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, "YES", "no", "12b", "",
        " 0.25", "65662", "Center", QByteArray(), QByteArray("1"), colorSample("S005"),
        QDateTime({2001, 2, 3}, {4, 5}, QTimeZone::utc()), QVariantList(), QVariantList{true}, QVariantMap(),
        QVariantMap{{"other", "1"}}};
}

QVariantMap everythingAs(const QVariant &value)
{
    QVariantMap settings;
    for (const KTXSetting &setting : KTXSettings()) {
        if (value.isValid())
            settings.insert(setting.key, value);
    }
    return settings;
}

class SettingsAgreement : public PaneOnRealStore
{
protected:
    /// The window as someone finds it who opens it on these settings.
    void open(const QVariantMap &settings)
    {
        destroyPane();
        calls.clear();
        store().set(settings);
        const CapturedLog log;
        pane().willSelect();
        runPendingEvents();
        saidWhatItDoes_ = !log.linesContaining(QStringLiteral("Lumaroo prefPane: willSelect")).isEmpty();
    }

    /// Whether what the window shows, or does, for a key is this value; only the agent knows its own keys.
    bool isShown(const KTXSetting &setting, const QVariant &value)
    {
        static const QSet<QString> agentsOwn{KTXsuppressMissionControl, KTXShowHidden, KTXVisualMode, KTXShouldToggle,
            KTXShouldBeep, KTXTutorialDone, KTXExcludedApplications, KTXShowInTray, KTXWelcomeShown};
        if (agentsOwn.contains(setting.key))
            return true;
        switch (setting.type) {
        case KTXSettingType::Presence:
            return calls.contains(QStringLiteral("startAgent")) != value.isValid();
        case KTXSettingType::ModifierMask:
            return shownModifiers() == value.toUInt();
        case KTXSettingType::Number:
            return control<FloatSlider>(sliders.value(setting.key))->value() == double(value.toFloat());
        case KTXSettingType::SortOrder:
            return selectedItemTag(control(popUps.value(setting.key))) == tagOf(setting.key, value);
        case KTXSettingType::Color:
            return isShownColor(value.toByteArray());
        case KTXSettingType::HotKey:
            return shownKey(setting.key) == keyName(value);
        default:
            return isOn(setting.key) == value.toBool();
        }
    }

    /// For each key with a value that the window shows otherwise than the agent takes it: key and value.
    QStringList disagreements(const QVariantMap &stored)
    {
        QStringList found;
        for (const QVariantMap &settings : {effectiveSettings(stored), effectiveSettings(store().domain())}) {
            for (const KTXSetting &setting : KTXSettings()) {
                const QVariant value = settings.value(setting.key);
                if (!isShown(setting, value))
                    found += setting.key + QStringLiteral(": ") + description(value);
            }
        }
        return found;
    }

    static int tagOf(const QString &key, const QVariant &value)
    {
        for (const KTXChoice &choice : KTXChoices()) {
            if (choice.key == key && choice.value == value)
                return choice.tag;
        }
        return KTXNoItemTag;
    }

    static QString keyName(const QVariant &entry)
    {
        return KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keyCodeOf(entry).value_or(0xffff), 0);
    }

    const QHash<QString, const char *> popUps{
        {KTXHSort, "HorizontalPopup"}, {KTXVSort, "VerticalPopup"}, {KTXCycleAscending, "cycleOrderPopup"}};
    const QHash<QString, const char *> sliders{
        {KTXRepeatRate, "repeatRateSlider"}, {KTXInitialDelay, "repeatDelaySlider"}};

private:
    quint32 shownModifiers()
    {
        quint32 mask = 0;
        for (const char *name : {"shiftCheckBox", "controlCheckBox", "optionCheckBox", "commandCheckBox"})
            mask |= state(control(name)) == NSOnState ? quint32(tag(control(name))) : 0;
        return mask;
    }

    bool isShownColor(const QByteArray &archive)
    {
        return NSArchiver::archivedDataWithRootObject(color(control("overlayColorWell"))) == archive;
    }

    QString shownKey(const QString &name)
    {
        return stringValue(keyField(int(pane().keyCodePrefNames().indexOf(name))));
    }

    bool isOn(const QString &key)
    {
        static const QHash<QString, const char *> checkBoxes{{KTXAutoRepeat, "keyRepeatButton"},
            {KTXAnimate, "animateButton"}, {KTXHWrap, "enableHorizontalWrapButton"},
            {KTXVWrap, "enableVerticalWrapButton"}, {SUEnableAutomaticChecks, "autoUpdateButton"},
            {KTXActivateDoubleClick, "doubleClickActivateCheckBox"}};
        if (key == KTXShouldDebug)
            return saidWhatItDoes_;
        if (key == KTXCycleAscending)
            return selectedItemTag(control(popUps.value(key))) == KTXCyclesAscendingTag;
        if (key == KTXPersistentDoubleClick)
            return tag(control<NSMatrix>("persistentModeMatrix")->selectedCell()) == KTXPersistentByDoubleClickTag;
        return checkBoxes.contains(key) ? state(control(checkBoxes.value(key))) == NSOnState : isSuppressed(key);
    }

    bool saidWhatItDoes_ = false;
};

} // namespace

TEST_F(SettingsAgreement, holdsForEachKeyAndEachKindOfValue)
{
    for (const QVariant &value : kindsOfValue()) {
        const QVariantMap settings = everythingAs(value);
        open(settings);
        EXPECT_EQ(disagreements(settings).join(u'\n').toStdString(), "")
            << (value.isValid() ? value.typeName() : "nothing") << ' ' << description(value).toStdString();
    }
}

TEST_F(SettingsAgreement, holdsForEachKindOfKeyCode)
{
    for (const QVariant &value : kindsOfValue()) {
        if (!value.isValid())
            continue;
        QVariantMap settings{{KTXFirstLaunch, true}};
        for (const QString &name : paneWithoutView().keyCodePrefNames())
            settings.insert(name, QVariantMap{{KTXKeycode, value}, {KTXUnichar, "q"}});
        open(settings);
        EXPECT_EQ(disagreements(settings).join(u'\n').toStdString(), "") << description(value).toStdString();
    }
}

TEST_F(SettingsAgreement, holdsForEveryOrder)
{
    const QStringList orders{"FirstSelected", "LeftEdge", "RightEdge", "TopEdge", "BottomEdge", "LeadingEdge", "Center",
        "center", "Center ", "FirstSelecte", "1"};
    for (const QString &order : orders) {
        const QVariantMap settings{{KTXFirstLaunch, true}, {KTXHSort, order}, {KTXVSort, order}};
        open(settings);
        EXPECT_EQ(disagreements(settings).join(u'\n').toStdString(), "") << order.toStdString();
    }
}

TEST_F(SettingsAgreement, holdsForEachModifierMask)
{
    for (const int mask : {0, 0x100, 0x200, 0x800, 0x1000, 0x1800, 0x1A01, 0x1B00, 0xE4FF, -0x1801}) {
        const QVariantMap settings{{KTXFirstLaunch, true}, {KTXModifierMask, qlonglong(mask)}};
        open(settings);
        EXPECT_EQ(disagreements(settings).join(u'\n').toStdString(), "") << mask;
    }
}
