// What the agent goes by for whatever is stored, and how it shows that.

#include "agent/life/AgentSettings.h"
#include "ColorSamples.h"
#include "KTXConstants.h"
#include "KTXSettings.h"
#include "agent/life/SettingsJson.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>
#include <gtest/gtest.h>
#include <limits>

namespace {

QVariant effective(const QString &key, const QVariant &stored)
{
    return effectiveSettings({{key, stored}}).value(key);
}

QJsonObject shown(const QVariantMap &settings)
{
    const QList<AgentHotKey> hotKeys{
        {"moveUpHotKey", 126, "⌃⌥↑", {}, {}}, {"closeWindow", 13, "⌃⌥W", "taken", "otherProgram"}};
    return QJsonDocument::fromJson(settingsJson(100, 7, settings, hotKeys, {0x1100, 0x1900})).object();
}

QJsonValue shownValue(const QVariant &value)
{
    return shown({{"key", value}}).value("settings").toObject().value("key");
}

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

TEST(AgentSettings, areAllKeysOfTheDomainInTheirOrder)
{
    const QStringList expected{"Debug", "firstLaunch", "modifierKeyMask", "suppressHotkeyTakenAlert",
        "suppressHotkeysTakenAlert", "suppressModifierAlert", "overlayColor", "moveUpHotKey", "moveRightHotKey",
        "moveDownHotKey", "moveLeftHotKey", "moveUnderHotKey", "openPrefPane", "takeScreenshot", "closeWindow",
        "showPreview", "CancelSelection", "SnapToSelection", "SUEnableAutomaticChecks", "autoRepeat", "repeatRate",
        "initialDelay", "AnimateOverlay", "EnableHorizontalWrap", "EnableVerticalWrap", "HorizontalSortOrder",
        "VerticalSortOrder", "ActionKeyCyclesAscending", "doubleClickToActivate", "doubleClickForPersistent",
        "suppressMissionControl", "ShowHidden", "visualMode", "Toggle", "Beep", "tutorialWasClosed",
        "excludedApplications", "showInTray", "welcomeWasShown"};
    QStringList keys;
    for (const KTXSetting &setting : KTXSettings())
        keys += setting.key;
    EXPECT_EQ(keys, expected);
}

TEST(AgentSettings, ofAnEmptyDomainAreTheDefaultsThatThePaneWrites)
{
    const QVariantMap settings = effectiveSettings({});
    EXPECT_EQ(settings.size(), KTXSettings().size());
    const QVariantMap expected{{KTXAnimate, false}, {KTXAutoRepeat, true}, {KTXRepeatRate, 1.0F},
        {KTXInitialDelay, 0.0F}, {KTXHSort, "FirstSelected"}, {KTXVSort, "FirstSelected"}, {KTXHWrap, true},
        {KTXVWrap, true}, {KTXModifierMask, qlonglong(0x1800)}, {KTXShouldDebug, false},
        {SUEnableAutomaticChecks, false}, {KTXSuppressHKeyTaken, false}, {KTXsuppressHKeysTaken, false},
        {KTXSuppressModAlert, false}};
    for (auto value = expected.cbegin(); value != expected.cend(); ++value)
        EXPECT_TRUE(isEqualPropertyList(settings.value(value.key()), value.value())) << value.key().toStdString();
    EXPECT_EQ(settings.value(KTXUpPref), QVariantMap({{KTXKeycode, "126"}}));
    EXPECT_EQ(settings.value(KTXSnapPref), QVariantMap({{KTXKeycode, "36"}}));
    EXPECT_EQ(settings.value(KTXOverlayColor), systemColorArchive());
    EXPECT_FALSE(settings.value(KTXFirstLaunch).isValid());
}

TEST(AgentSettings, areTheSameFromChangeToChangeAsWorkedOutAtOnce)
{
    const QVariantList values{true, qlonglong(1), false, qlonglong(0), 1.0F, 1.0, "YES", "Center", QVariant(),
        QVariantMap{{KTXKeycode, "13"}}, QVariantMap{{KTXKeycode, "14"}}, QVariantMap(), colorSample("S001"),
        systemColorArchive(), QByteArray("no colour")};
    EffectiveSettings settings;
    EXPECT_TRUE(isEqualPropertyList(settings.values(), effectiveSettings({})));
    QVariantMap stored;
    for (const KTXSetting &setting : KTXSettings()) {
        for (const QVariant &value : values) {
            stored.insert(setting.key, value);
            const QVariantMap before = settings.values();
            const QStringList changes = settings.follow(stored);
            EXPECT_TRUE(isEqualPropertyList(settings.values(), effectiveSettings(stored)))
                << setting.key.toStdString() << ": " << value.typeName();
            const bool isSame = isEqualPropertyList(before, settings.values());
            EXPECT_TRUE(isSame || changes == QStringList(setting.key)) << setting.key.toStdString();
            EXPECT_TRUE(settings.follow(stored).isEmpty()) << setting.key.toStdString();
        }
    }
    settings.follow({});
    EXPECT_TRUE(isEqualPropertyList(settings.values(), effectiveSettings({}))) << "all removed";
}

TEST(AgentSettings, areWhatIsStoredWhereItIsOfTheRightType)
{
    const QVariantMap stored{{KTXShouldDebug, true}, {KTXFirstLaunch, "long ago"}, {KTXModifierMask, qlonglong(0x100)},
        {KTXOverlayColor, colorSample("S001")}, {KTXUpPref, QVariantMap{{KTXKeycode, "13"}, {KTXUnichar, "w"}}},
        {KTXRepeatRate, 0.25F}, {KTXHSort, "Center"}, {KTXVSort, "BottomEdge"}, {KTXCycleAscending, true},
        {KTXExcludedApplications, QVariantList{"Terminal", "Panel"}}};
    const QVariantMap settings = effectiveSettings(stored);
    for (auto value = stored.cbegin(); value != stored.cend(); ++value)
        EXPECT_TRUE(isEqualPropertyList(settings.value(value.key()), value.value())) << value.key().toStdString();
}

TEST(AgentSettings, ofAnotherTypeCountAsAbsentWhereTheTypeIsChecked)
{
    const QVariant date = QDateTime::currentDateTimeUtc();
    for (const KTXSetting &setting : KTXSettings()) {
        const bool isTakenAsItComes = setting.type == KTXSettingType::Presence || setting.type == KTXSettingType::Truth
            || setting.type == KTXSettingType::Number;
        if (isTakenAsItComes)
            continue;
        for (const QVariant &wrong : {date, QVariant(QVariantList{true}), QVariant(QVariantMap{{"other", "1"}})})
            EXPECT_EQ(effective(setting.key, wrong), setting.defaultValue) << setting.key.toStdString();
    }
    EXPECT_EQ(effective(KTXHWrap, qlonglong(0)), true);
    EXPECT_EQ(effective(KTXHWrap, "no"), true);
    EXPECT_EQ(effective(KTXHSort, QByteArray("Center")), "FirstSelected");
    EXPECT_EQ(effective(KTXVSort, "of no known meaning"), "FirstSelected");
    EXPECT_EQ(effective(KTXVSort, "LeftEdge"), "FirstSelected") << "an order of the other direction";
    EXPECT_EQ(effective(KTXOverlayColor, "text"), systemColorArchive());
    EXPECT_EQ(effective(KTXOverlayColor, QByteArray("damaged")), systemColorArchive());
    EXPECT_EQ(effective(KTXExcludedApplications, "Terminal"), QVariantList());
    EXPECT_EQ(effective(KTXExcludedApplications, QVariantList({"Terminal", true})), QVariantList());
    EXPECT_EQ(effective(KTXUpPref, "13"), QVariantMap({{KTXKeycode, "126"}}));
}

TEST(AgentSettings, ofAnotherTypeAreUsedAsTheyComeWhereTheTypeIsNotChecked)
{
    EXPECT_EQ(effective(KTXAutoRepeat, qlonglong(0)), false);
    EXPECT_EQ(effective(KTXAutoRepeat, QByteArray("1")), false);
    EXPECT_EQ(effective(KTXAnimate, "YES"), true);
    EXPECT_EQ(effective(KTXCycleAscending, 0.5), true);
    EXPECT_EQ(effective(KTXRepeatRate, "0.5"), 0.5F);
    EXPECT_EQ(effective(KTXRepeatRate, QVariantList()), 0.0F);
}

TEST(AgentSettings, keepNumbersWithinTheBoundsOfTheirSliders)
{
    EXPECT_EQ(effective(KTXRepeatRate, infinity), 1.0F);
    EXPECT_EQ(effective(KTXRepeatRate, -infinity), 0.0F);
    EXPECT_EQ(effective(KTXRepeatRate, std::numeric_limits<double>::quiet_NaN()), 0.0F);
    EXPECT_EQ(effective(KTXInitialDelay, 1e300), 2.0F);
    EXPECT_EQ(effective(KTXInitialDelay, 1.5), 1.5F);
    EXPECT_EQ(effective(KTXInitialDelay, qlonglong(3)), 2.0F);
}

TEST(AgentSettings, keepOnlyTheModifiersOfAMask)
{
    EXPECT_EQ(effective(KTXModifierMask, qlonglong(0x1A01)), qlonglong(0x1A00));
    EXPECT_EQ(effective(KTXModifierMask, qlonglong(0x1B00)), qlonglong(0x1B00));
    EXPECT_EQ(effective(KTXModifierMask, qlonglong(0)), qlonglong(0));
    EXPECT_EQ(effective(KTXModifierMask, qlonglong(-1)), qlonglong(0x1B00));
    EXPECT_EQ(effective(KTXModifierMask, 256.5), qlonglong(0x100));
    for (const QVariant &none : {QVariant(qlonglong(1) << 31), QVariant(-(qlonglong(1) << 31) - 1),
             QVariant(std::numeric_limits<qulonglong>::max()), QVariant(infinity), QVariant("256"), QVariant(true)})
        EXPECT_EQ(effective(KTXModifierMask, none), qlonglong(0x1800));
}

TEST(AgentSettings, leaveOutKeysThatNobodyAgreedOn)
{
    EXPECT_FALSE(effectiveSettings({{"unknown", 1}}).contains("unknown"));
}

TEST(TheShownSettings, holdVersionReadingsAndEveryKey)
{
    const QJsonObject object = shown(effectiveSettings({}));
    EXPECT_EQ(object.keys(), QStringList({"freeModifiers", "hotKeys", "readings", "settings", "version"}));
    EXPECT_EQ(object.value("freeModifiers").toArray(), (QJsonArray{0x1100, 0x1900}));
    EXPECT_EQ(object.value("version").toInt(), 100);
    EXPECT_EQ(object.value("readings").toInt(), 7);
    EXPECT_EQ(object.value("settings").toObject().size(), KTXSettings().size());
}

TEST(TheShownSettings, tellWhichKeysWork)
{
    const QJsonArray expected{
        QJsonObject{{"action", "moveUpHotKey"}, {"keyCode", 126}, {"combination", "⌃⌥↑"}, {"registered", true}},
        QJsonObject{{"action", "closeWindow"}, {"keyCode", 13}, {"combination", "⌃⌥W"}, {"registered", false},
            {"refusal", "taken"}, {"cause", "otherProgram"}}};
    EXPECT_EQ(shown({}).value("hotKeys").toArray(), expected);
}

TEST(TheShownSettings, showEachKindOfValue)
{
    EXPECT_EQ(shownValue(true), QJsonValue(true));
    EXPECT_EQ(shownValue(std::numeric_limits<qlonglong>::min()).toInteger(), std::numeric_limits<qlonglong>::min());
    EXPECT_EQ(shownValue(0.25F), QJsonValue(0.25));
    EXPECT_EQ(shownValue("text"), QJsonValue("text"));
    EXPECT_EQ(shownValue(QByteArray("\x00\xff", 2)), QJsonValue("AP8="));
    EXPECT_EQ(
        shownValue(QDateTime({2001, 2, 3}, {4, 5, 6, 7}, QTimeZone::utc())), QJsonValue("2001-02-03T04:05:06.007Z"));
    EXPECT_EQ(shownValue(QVariantMap{{"list", QVariantList{QByteArray("a"), qlonglong(1)}}}),
        QJsonValue(QJsonObject{{"list", QJsonArray{"YQ==", 1}}}));
    EXPECT_TRUE(shownValue({}).isNull());
    EXPECT_TRUE(shownValue(infinity).isNull());
}

TEST(TheShownSettings, staySoundJsonWhateverTheTextsHold)
{
    const QString strange = QString::fromUtf16(u"quote \" back \\ line \n nul \0 end", 31);
    EXPECT_EQ(shownValue(strange), QJsonValue(strange));
    EXPECT_TRUE(shownValue(QString(QChar(0xD800)) + "x").isString());
    EXPECT_EQ(shown({{strange, 1}}).value("settings").toObject().keys(), QStringList(strange));
}
