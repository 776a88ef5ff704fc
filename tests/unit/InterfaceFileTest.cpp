#include "CapturedLog.h"
#include "TestInterface.h"
#include "platform/appkit/controls/ConflictMarker.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QToolButton>
#include <gmock/gmock.h>

using testing::HasSubstr;

class InterfaceFile : public testing::Test
{
protected:
    QString onlyLogLine() const
    {
        EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
        return log.lines().value(0);
    }

    CapturedLog log;
    TestInterface interface;
};

TEST_F(InterfaceFile, aMissingFileIsNoViewAndOneLoggedLine)
{
    EXPECT_EQ(interface.load(), nullptr);
    EXPECT_THAT(onlyLogLine().toStdString(), HasSubstr("Test.ui"));
}

TEST_F(InterfaceFile, withoutABundleThereIsNoViewAndOneLoggedLine)
{
    EXPECT_EQ(loadInterfaceFile(nullptr, "Test", interface.owner), nullptr);
    EXPECT_THAT(onlyLogLine().toStdString(), HasSubstr("Test.ui"));
}

TEST_F(InterfaceFile, aFileThatBreaksOffIsNoViewAndOneLoggedLineWithThePlace)
{
    interface.bundle.writeFile("Contents/Resources/Test.ui", "<ui version=\"4.0\">\n<widget class=\"QWidget\"");
    EXPECT_EQ(interface.load(), nullptr);
    EXPECT_THAT(onlyLogLine().toStdString(), testing::AllOf(HasSubstr("Test.ui"), HasSubstr("line 2")));
}

TEST_F(InterfaceFile, anotherKindOfFileIsNoViewAndOneLoggedLine)
{
    interface.bundle.writeFile("Contents/Resources/Test.ui", "<plist version=\"1.0\"><dict/></plist>");
    EXPECT_EQ(interface.load(), nullptr);
    EXPECT_THAT(onlyLogLine().toStdString(), HasSubstr("is no interface file"));
}

TEST_F(InterfaceFile, anEmptyFileIsNoViewAndOneLoggedLine)
{
    interface.bundle.writeFile("Contents/Resources/Test.ui", "");
    EXPECT_EQ(interface.load(), nullptr);
    EXPECT_THAT(onlyLogLine().toStdString(), HasSubstr("Test.ui"));
}

TEST_F(InterfaceFile, aFileWithoutAViewIsNoViewAndOneLoggedLine)
{
    interface.bundle.writeFile("Contents/Resources/Test.ui", "<ui version=\"4.0\"><class>Test</class></ui>");
    EXPECT_EQ(interface.load(), nullptr);
    EXPECT_THAT(onlyLogLine().toStdString(), HasSubstr("Test.ui"));
}

TEST_F(InterfaceFile, anUnknownClassIsOneLoggedLineAndAPlainViewWithItsChildren)
{
    ASSERT_TRUE(
        interface.load(R"(<widget class="Unheard" name="strange"><widget class="QLabel" name="inside"/></widget>)"));
    EXPECT_EQ(onlyLogLine(), "lumaroo: Test.ui: strange: unknown class Unheard, QWidget stands in");
    ASSERT_TRUE(interface.find("strange"));
    EXPECT_EQ(interface.find("inside")->parentWidget(), interface.find("strange"));
}

TEST_F(InterfaceFile, anUnknownClassThatExtendsAKnownOneIsThatOne)
{
    interface.load(R"(<widget class="Unheard" name="strange"/>)",
        R"(<customwidgets><customwidget><class>Unheard</class><extends>QCheckBox</extends><header>u.h</header></customwidget></customwidgets>)");
    EXPECT_EQ(onlyLogLine(), "lumaroo: Test.ui: strange: unknown class Unheard, QCheckBox stands in");
    EXPECT_TRUE(interface.find<QCheckBox>("strange"));
}

TEST_F(InterfaceFile, aClassOfItsOwnersIsMadeByItForTheBundle)
{
    QString madeFor;
    interface.owner.classes = {{"Owners", [&madeFor](QWidget *parent, const NSBundle *bundle) {
                                    madeFor = bundle->bundlePath();
                                    return new QCheckBox("as made", parent);
                                }}};
    interface.load(
        R"(<widget class="Owners" name="own"><property name="checked"><bool>true</bool></property></widget>)");
    const auto *own = interface.find<QCheckBox>("own");
    ASSERT_TRUE(own);
    EXPECT_EQ(own->text(), "as made");
    EXPECT_EQ(own->parentWidget(), interface.root);
    EXPECT_EQ(madeFor, NSBundle::bundleWithPath(interface.bundle.path())->bundlePath());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(InterfaceFile, classesThatExtendOneAnotherInACircleBecomeAPlainView)
{
    interface.load(R"(<widget class="A" name="strange"/>)",
        R"(<customwidgets><customwidget><class>A</class><extends>B</extends><header>u.h</header></customwidget>)"
        R"(<customwidget><class>B</class><extends>A</extends><header>u.h</header></customwidget></customwidgets>)");
    EXPECT_TRUE(interface.find("strange"));
    EXPECT_EQ(log.linesContaining("unknown class A").size(), 1);
}

TEST_F(InterfaceFile, whatTheToolkitCannotUseIsLoggedWithTheFile)
{
    interface.load("",
        R"(<connections><connection><sender>root</sender><signal>sung()</signal><receiver>root</receiver><slot>hide()</slot></connection></connections>)");
    EXPECT_THAT(
        onlyLogLine().toStdString(), testing::AllOf(HasSubstr("Test.ui"), HasSubstr("sung()"), HasSubstr("'root'")));
}

TEST_F(InterfaceFile, linesAndGroupsOfTheToolkitAreKnown)
{
    interface.load(
        R"(<widget class="Line" name="line"/><widget class="QGroupBox" name="box"/><widget class="NSMatrix" name="matrix"/>)");
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();
    EXPECT_TRUE(interface.find<QFrame>("line"));
    EXPECT_TRUE(interface.find<NSMatrix>("matrix"));
}

TEST_F(InterfaceFile, anOutletHoldsTheObjectOfItsNameTheRootIncluded)
{
    Outlet<QWidget> root;
    Outlet<QCheckBox> box;
    Outlet<QCheckBox> absent;
    interface.owner.outlets = {outletEntry("root", root), outletEntry("box", box), outletEntry("absent", absent)};
    interface.load(R"(<widget class="QCheckBox" name="box"/>)");
    EXPECT_EQ(root.get(), interface.root);
    EXPECT_EQ(box.get(), interface.find("box"));
    EXPECT_FALSE(absent);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(InterfaceFile, anObjectOfTheWrongTypeIsOneLoggedLineAndNoOutlet)
{
    Outlet<QCheckBox> box;
    interface.owner.outlets = {outletEntry("box", box)};
    interface.load(R"(<widget class="QLineEdit" name="box"/>)");
    EXPECT_FALSE(box);
    EXPECT_EQ(onlyLogLine(), "lumaroo: Test.ui: box: a QLineEdit is no object for this outlet of TestOwner");
}

TEST_F(InterfaceFile, anOutletIsEmptyAfterItsObjectIsGoneAndUsingItDoesNothing)
{
    Outlet<QCheckBox> box;
    interface.owner.outlets = {outletEntry("box", box)};
    interface.load(R"(<widget class="QCheckBox" name="box"/>)");
    setState(box, NSOnState);
    EXPECT_EQ(state(box), NSOnState);
    delete interface.root;
    EXPECT_FALSE(box);
    setState(box, NSOnState);
    EXPECT_EQ(state(box), NSOffState);
}

TEST_F(InterfaceFile, tagsOfObjectsAndOfItemsAreRead)
{
    interface.load(
        R"(<widget class="QComboBox" name="popUp"><property name="tag" stdset="0"><number>7</number></property>
        <property name="tags" stdset="0"><stringlist notr="true"><string>52</string><string>60</string></stringlist></property>
        <item><property name="text"><string>Right</string></property></item>
        <item><property name="text"><string>Centre</string></property></item></widget>)");
    auto *popUp = interface.find<QComboBox>("popUp");
    EXPECT_EQ(tag(popUp), 7);
    EXPECT_EQ(tag(interface.root), -1);
    EXPECT_EQ(selectedItemTag(popUp), 52);
    EXPECT_TRUE(selectItemWithTag(popUp, 60));
    EXPECT_EQ(popUp->currentText(), "Centre");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(InterfaceFile, tagsThatDoNotFitTheItemsAreLogged)
{
    interface.load(R"(<widget class="QComboBox" name="popUp">
        <property name="tags" stdset="0"><stringlist><string>x</string><string>60</string></stringlist></property>
        <item><property name="text"><string>Right</string></property></item></widget>)");
    EXPECT_EQ(log.lines(),
        QStringList({"lumaroo: Test.ui: popUp: 2 tags for 1 items", "lumaroo: Test.ui: popUp: x is no tag"}));
    EXPECT_EQ(selectedItemTag(interface.find("popUp")), -1);
}

TEST_F(InterfaceFile, connectionsOfTheFileWorkAndCarryEveryMarkerTextToItsField)
{
    interface.load(R"(<widget class="ConflictMarker" name="marker"/><widget class="QLineEdit" name="field"/>)",
        R"(<connections><connection><sender>marker</sender><signal>textSet(QString)</signal>
        <receiver>field</receiver><slot>setText(QString)</slot></connection></connections>)");
    auto *field = interface.find<QLineEdit>("field");
    setStringValue(interface.find("marker"), "F5");
    EXPECT_EQ(field->text(), "F5");
    field->setText("other");
    setStringValue(interface.find("marker"), "F5");
    EXPECT_EQ(field->text(), "F5");
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(InterfaceFile, loadingLeavesThePlugInPathsAsTheyWere)
{
    const QStringList before = QCoreApplication::libraryPaths();
    interface.load("");
    EXPECT_EQ(QCoreApplication::libraryPaths(), before);
}
