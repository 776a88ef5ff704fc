#include "PrivateSettings.h"
#include "platform/foundation/propertylists/CFTypeID.h"

#include <QDateTime>

// What counts as a boolean, as an integer, and what a value is.

class SettingsValues : public PrivateSettings
{
protected:
    struct Boolean
    {
        bool value;
        bool valid;
        bool operator==(const Boolean &) const = default;
    };
    struct Integer
    {
        int value;
        bool valid;
        bool operator==(const Integer &) const = default;
    };

    Boolean asBoolean(const QVariant &value)
    {
        CFPreferencesSetAppValue("key", value, testDomain);
        Boolean result{true, true};
        result.value = CFPreferencesGetAppBooleanValue("key", testDomain, &result.valid);
        return result;
    }
    Integer asInteger(const QVariant &value)
    {
        CFPreferencesSetAppValue("key", value, testDomain);
        Integer result{-7, true};
        result.value = CFPreferencesGetAppIntegerValue("key", testDomain, &result.valid);
        return result;
    }
};

TEST_F(SettingsValues, onlyABooleanIsAValidBoolean)
{
    EXPECT_EQ(asBoolean(true), (Boolean{true, true}));
    EXPECT_EQ(asBoolean(false), (Boolean{false, true}));
    for (const QVariant &other : {QVariant(1), QVariant(0), QVariant(1.0), QVariant("true"), QVariant("YES"),
             QVariant(QByteArray("1")), QVariant(QVariantList{true}), QVariant(QVariantMap{{"a", true}}), QVariant()})
        EXPECT_EQ(asBoolean(other), (Boolean{false, false})) << other.typeName();
}

TEST_F(SettingsValues, onlyANumberWithin32BitsIsAValidInteger)
{
    EXPECT_EQ(asInteger(6144), (Integer{6144, true}));
    EXPECT_EQ(asInteger(0), (Integer{0, true}));
    EXPECT_EQ(asInteger(2147483647LL), (Integer{2147483647, true}));
    EXPECT_EQ(asInteger(-2147483648LL), (Integer{std::numeric_limits<int>::min(), true}));
    EXPECT_EQ(asInteger(2147483648LL), (Integer{0, false}));
    EXPECT_EQ(asInteger(-2147483649LL), (Integer{0, false}));
    EXPECT_EQ(asInteger(std::numeric_limits<qlonglong>::min()), (Integer{0, false}));
    EXPECT_EQ(asInteger(std::numeric_limits<qulonglong>::max()), (Integer{0, false}));
    for (const QVariant &other :
        {QVariant(true), QVariant("12"), QVariant(QByteArray("12")), QVariant(QVariantList{12}), QVariant()})
        EXPECT_EQ(asInteger(other), (Integer{0, false})) << other.typeName();
}

TEST_F(SettingsValues, aRealCountsAsTheIntegerBeforeItsPoint)
{
    EXPECT_EQ(asInteger(1.75), (Integer{1, true}));
    EXPECT_EQ(asInteger(-1.75f), (Integer{-1, true}));
    EXPECT_EQ(asInteger(2147483647.5), (Integer{2147483647, true}));
    EXPECT_EQ(asInteger(1e10), (Integer{0, false}));
    EXPECT_EQ(asInteger(std::numeric_limits<double>::quiet_NaN()), (Integer{0, false}));
    EXPECT_EQ(asInteger(-std::numeric_limits<double>::infinity()), (Integer{0, false}));
}

TEST_F(SettingsValues, theFlagsAreOptional)
{
    EXPECT_FALSE(CFPreferencesGetAppBooleanValue("absent", testDomain));
    EXPECT_EQ(CFPreferencesGetAppIntegerValue("absent", testDomain), 0);
}

TEST_F(SettingsValues, theRulesHoldForWhatIsStoredToo)
{
    store({{"boolean", true}, {"one", 1}, {"wide", 1LL << 40}});
    EXPECT_TRUE(CFPreferencesGetAppBooleanValue("boolean", testDomain));
    bool valid = true;
    EXPECT_FALSE(CFPreferencesGetAppBooleanValue("one", testDomain, &valid));
    EXPECT_FALSE(valid);
    EXPECT_EQ(CFPreferencesGetAppIntegerValue("wide", testDomain, &valid), 0);
    EXPECT_FALSE(valid);
}

TEST_F(SettingsValues, aValueReadsTheSameBeforeAndAfterTheFlush)
{
    const QVariantMap values{{"int", 7}, {"unsigned", 7u}, {"float", 0.1f}, {"texts", QStringList{"a", "b"}},
        {"local date", QDateTime(QDate(2024, 1, 1), QTime(1, 2, 3), Qt::OffsetFromUTC, 3600)}};
    for (auto value = values.begin(); value != values.end(); ++value)
        CFPreferencesSetAppValue(value.key(), value.value(), testDomain);
    const QVariantMap before = wholeDomain();
    ASSERT_TRUE(CFPreferencesAppSynchronize(testDomain));
    for (auto value = before.begin(); value != before.end(); ++value) {
        EXPECT_EQ(stored()[value.key()].typeId(), value->typeId()) << value.key().toStdString();
        EXPECT_EQ(stored()[value.key()], *value);
    }
}

TEST_F(SettingsValues, everyKindOfValueHasItsType)
{
    EXPECT_EQ(CFGetTypeID(QVariant()), CFTypeID::None);
    EXPECT_EQ(CFGetTypeID(true), CFBooleanGetTypeID());
    EXPECT_EQ(CFGetTypeID(1), CFTypeID::Number);
    EXPECT_EQ(CFGetTypeID(1LL), CFTypeID::Number);
    EXPECT_EQ(CFGetTypeID(QVariant::fromValue(short(1))), CFTypeID::Number);
    EXPECT_EQ(CFGetTypeID(QVariant::fromValue(ushort(1))), CFTypeID::Number);
    EXPECT_EQ(CFGetTypeID(1.0f), CFTypeID::Number);
    EXPECT_EQ(CFGetTypeID(1.0), CFTypeID::Number);
    EXPECT_EQ(CFGetTypeID("text"), CFTypeID::String);
    EXPECT_EQ(CFGetTypeID(QByteArray()), CFTypeID::Data);
    EXPECT_EQ(CFGetTypeID(QDateTime::currentDateTime()), CFTypeID::Date);
    EXPECT_EQ(CFGetTypeID(QVariantList()), CFTypeID::Array);
    EXPECT_EQ(CFGetTypeID(QVariantMap()), CFTypeID::Dictionary);
}

TEST_F(SettingsValues, onlyTheBooleanTrueIsTrue)
{
    EXPECT_TRUE(CFBooleanGetValue(true));
    for (const QVariant &other : {QVariant(), QVariant(false), QVariant(1), QVariant("true"), QVariant(1.0f)})
        EXPECT_FALSE(CFBooleanGetValue(other));
}
