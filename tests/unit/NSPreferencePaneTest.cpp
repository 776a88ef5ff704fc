#include "platform/appkit/interface/NSPreferencePane.h"
#include "CapturedLog.h"
#include "TestBundle.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QPushButton>
#include <gtest/gtest.h>

namespace {

QByteArray interfaceFile(const QByteArray &root)
{
    return R"(<ui version="4.0"><class>Main</class><widget class="QWidget" name=")" + root
        + R"("><widget class="QPushButton" name="button"><property name="action" stdset="0"><string>act:</string></property></widget></widget></ui>)";
}

class Pane : public NSPreferencePane
{
public:
    explicit Pane(QStringList *calls) : calls_(calls) { }
    void mainViewDidLoad() override { *calls_ += button_ ? "mainViewDidLoad" : "mainViewDidLoad without outlet"; }
    InterfaceOwner interfaceOwner() override
    {
        return {this, "Pane", {outletEntry("button", button_)}, {{"act:", [this](QObject *) { *calls_ += "act:"; }}}};
    }

private:
    QStringList *calls_;
    Outlet<QPushButton> button_;
};

} // namespace

class APane : public testing::Test
{
protected:
    APane()
    {
        bundle.writeInfo({{"CFBundleIdentifier", "com.quorvane.Test"}, {"NSMainNibFile", "Panel"}});
        bundle.writeFile("Contents/Resources/Panel.ui", interfaceFile("panel"));
        bundle.writeFile("Contents/Resources/Main.ui", interfaceFile("main"));
    }

    CapturedLog log;
    TestBundle bundle{"Test.prefPane"};
    QStringList calls;
    std::unique_ptr<Pane> pane = std::make_unique<Pane>(&calls);
};

TEST_F(APane, loadsTheViewThatItsBundleNamesAndIsToldOnceItsOutletsAreConnected)
{
    ASSERT_TRUE(pane->initWithBundle(NSBundle::bundleWithPath(bundle.path())));
    QWidget *view = pane->loadMainView();
    ASSERT_TRUE(view);
    EXPECT_EQ(view->objectName(), "panel");
    EXPECT_EQ(pane->mainView(), view);
    EXPECT_EQ(calls, QStringList("mainViewDidLoad"));
}

TEST_F(APane, loadsMainWhereTheBundleNamesNoView)
{
    bundle.writeInfo({{"CFBundleIdentifier", "com.quorvane.Test"}});
    ASSERT_TRUE(pane->initWithBundle(NSBundle::bundleWithPath(bundle.path())));
    EXPECT_EQ(pane->loadMainView()->objectName(), "main");
}

TEST_F(APane, withoutABundleIsNotInitialisedAndHasNoView)
{
    EXPECT_FALSE(pane->initWithBundle(nullptr));
    EXPECT_EQ(pane->loadMainView(), nullptr);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(APane, whoseViewCannotBeLoadedIsNotToldThatItWas)
{
    bundle.writeFile("Contents/Resources/Panel.ui", "broken");
    pane->initWithBundle(NSBundle::bundleWithPath(bundle.path()));
    EXPECT_EQ(pane->loadMainView(), nullptr);
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(APane, takesItsViewWithItAndHearsOfNoClickAnyMore)
{
    pane->initWithBundle(NSBundle::bundleWithPath(bundle.path()));
    const QPointer<QWidget> view = pane->loadMainView();
    auto *button = view->findChild<QPushButton *>("button");
    performClick(button);
    EXPECT_EQ(calls.last(), "act:");
    calls.clear();
    // The last click arrives while the view is being torn down.
    auto *last = new QObject(view);
    QObject::connect(last, &QObject::destroyed, button, [button] { button->click(); });
    button->setParent(nullptr);
    pane.reset();
    EXPECT_TRUE(view.isNull());
    EXPECT_TRUE(calls.isEmpty());
    delete button;
}

TEST_F(APane, leavesAViewThatIsGoneAlready)
{
    pane->initWithBundle(NSBundle::bundleWithPath(bundle.path()));
    delete pane->loadMainView();
    EXPECT_EQ(pane->mainView(), nullptr);
    pane.reset();
}
