#include "CapturedLog.h"
#include "TestBundle.h"

#include "platform/appkit/interface/NSNib.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QPushButton>
#include <gtest/gtest.h>

namespace {

/// An owner that notes what it finds when it is awoken.
class Owner : public NSNibAwaking
{
public:
    InterfaceOwner interfaceOwner() override
    {
        const ActionEntry act{"act:", [this](QObject *) { ++actions; }};
        return {&actionsEndWith, "Owner", {outletEntry("button", button)}, {act}, nullptr, nullptr, nullptr, nullptr};
    }
    void awakeFromNib() override
    {
        ++awakenings;
        if (button)
            button.get()->click();
        actionsWhenAwoken = actions;
        objectsWhenAwoken = objects.size();
    }

    QObject actionsEndWith;
    Outlet<QPushButton> button;
    NSTopLevelObjects objects;
    int actions = 0, actionsWhenAwoken = 0, awakenings = 0;
    size_t objectsWhenAwoken = 0;
};

class NibLoading : public testing::Test
{
protected:
    void write(const QByteArray &content) const { bundle.writeFile("Contents/Resources/Sample.ui", content); }
    bool load(const QString &name = QStringLiteral("Sample"))
    {
        return loadNibFile(NSBundle::bundleWithPath(bundle.path()), name,
            {{NSNibOwner, &owner}, {NSNibTopLevelObjects, &owner.objects}});
    }

    const TestBundle bundle{"Sample.bundle"};
    const CapturedLog log{};
    Owner owner;
};

const QByteArray windowWithButton =
    R"(<ui version="4.0"><class>Sample</class><widget class="QDialog" name="window">)"
    R"(<widget class="QPushButton" name="button"><property name="action" stdset="0"><string>act:</string></property>)"
    R"(</widget></widget></ui>)";

} // namespace

TEST_F(NibLoading, theNamesOfTheTableAreThePlatforms)
{
    EXPECT_EQ(NSNibOwner, "NSOwner");
    EXPECT_EQ(NSNibTopLevelObjects, "NSTopLevelObjects");
}

TEST_F(NibLoading, theOwnerIsAwokenOnceEverythingIsConnected)
{
    write(windowWithButton);
    ASSERT_TRUE(load());
    EXPECT_EQ(owner.awakenings, 1);
    EXPECT_EQ(owner.actionsWhenAwoken, 1);
    EXPECT_EQ(owner.objectsWhenAwoken, 1U);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(NibLoading, whoHoldsTheTopLevelObjectsKeepsThemAlive)
{
    write(windowWithButton);
    ASSERT_TRUE(load());
    ASSERT_EQ(owner.objects.size(), 1U);
    EXPECT_EQ(owner.objects.front()->objectName(), "window");
    owner.objects.clear();
    EXPECT_FALSE(owner.button);
}

TEST_F(NibLoading, aMissingFileIsToldByTheAnswerAlone)
{
    EXPECT_FALSE(load("Nothing"));
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_TRUE(owner.objects.empty());
    EXPECT_EQ(owner.awakenings, 0);
}

TEST_F(NibLoading, withoutABundleThereIsNoFile)
{
    EXPECT_FALSE(loadNibFile(nullptr, "Sample", {{NSNibOwner, &owner}, {NSNibTopLevelObjects, &owner.objects}}));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(NibLoading, aDamagedFileIsOneLineAndWakesNobody)
{
    write("<ui version=\"4.0\"><widget");
    EXPECT_FALSE(load());
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(owner.objects.empty());
    EXPECT_EQ(owner.awakenings, 0);
}

TEST_F(NibLoading, aTableThatLacksOwnerOrListIsAWrongCall)
{
    write(windowWithButton);
    const NSBundle *sample = NSBundle::bundleWithPath(bundle.path());
    EXPECT_THROW(loadNibFile(sample, "Sample", {{NSNibOwner, &owner}}), NSException);
    EXPECT_THROW(loadNibFile(sample, "Sample", {{NSNibTopLevelObjects, &owner.objects}}), NSException);
    EXPECT_EQ(owner.awakenings, 0);
}
