// What the page about updates shows of a copy that cannot update itself.

#include "PaneOnRealStore.h"
#include "Wait.h"

namespace {

const QString key = QStringLiteral("SUPublicEDKey");
const QList<const char *> offers{"autoUpdateButton", "manualHeading", "manualCard", "statusHeading", "statusCard"};

class PaneThisCopy : public PaneOnRealStore
{
};

} // namespace

TEST_F(PaneThisCopy, withoutAKeyTheVersionStandsInPlaceOfTheChecks)
{
    changeInfo({{key, QString()}, {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.2")}});
    for (const char *name : offers)
        EXPECT_TRUE(isHidden(control(name))) << name;
    EXPECT_FALSE(isHidden(control("thisCopyField")));
    EXPECT_EQ(text("thisCopyField"), "Lumaroo 1.2");
}

TEST_F(PaneThisCopy, withAKeyEverythingIsOffered)
{
    changeInfo({{key, QStringLiteral("any")}});
    for (const char *name : offers)
        EXPECT_FALSE(isHidden(control(name))) << name;
    EXPECT_TRUE(isHidden(control("thisCopyField")));
}
