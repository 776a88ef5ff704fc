#include "CapturedLog.h"
#include "TestInterface.h"
#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/foundation/NSException.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>
#include <QToolButton>

namespace {

QByteArray acting(const char *className, const char *name, const char *inside = "")
{
    return QByteArray("<widget class=\"") + className + "\" name=\"" + name
        + R"("><property name="action" stdset="0"><string notr="true">act:</string></property>)" + inside + "</widget>";
}

} // namespace

class InterfaceActions : public testing::Test
{
protected:
    void show()
    {
        interface.root->resize(400, 300);
        interface.root->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(interface.root));
    }

    CapturedLog log;
    TestInterface interface;
};

TEST_F(InterfaceActions, clickingAButtonSendsItsActionWithItAsSender)
{
    interface.load(acting("QCheckBox", "box"));
    show();
    QTest::mouseClick(interface.find("box"), Qt::LeftButton, {}, QPoint(5, interface.find("box")->height() / 2));
    EXPECT_EQ(interface.sent, QStringList("act: box"));
    QTest::keyClick(interface.find("box"), Qt::Key_Space);
    EXPECT_EQ(interface.sent, QStringList({"act: box", "act: box"}));
}

TEST_F(InterfaceActions, choosingAnItemSendsTheActionOfThePopUp)
{
    interface.load(acting("QComboBox", "popUp",
        "<item><property name=\"text\"><string>A</string></property></item>"
        "<item><property name=\"text\"><string>B</string></property></item>"));
    show();
    QTest::keyClick(interface.find("popUp"), Qt::Key_Down);
    EXPECT_EQ(interface.sent, QStringList("act: popUp"));
}

TEST_F(InterfaceActions, movingASliderSendsItsAction)
{
    interface.load(acting("FloatSlider", "slider"));
    show();
    QTest::keyClick(interface.find("slider"), Qt::Key_Right);
    EXPECT_EQ(interface.sent, QStringList("act: slider"));
}

TEST_F(InterfaceActions, clickingACellSendsTheActionOfItsMatrix)
{
    interface.load(acting("NSMatrix", "matrix", R"(<widget class="QCheckBox" name="cell"/>)"));
    show();
    QTest::mouseClick(interface.find("cell"), Qt::LeftButton, {}, QPoint(5, interface.find("cell")->height() / 2));
    EXPECT_EQ(interface.sent, QStringList("act: matrix"));
}

TEST_F(InterfaceActions, pickingAColourSendsTheActionOfTheWell)
{
    interface.load(acting("NSColorWell", "well"));
    interface.find<NSColorWell>("well")->takeColorFromPanel(NSColor::redColor());
    EXPECT_EQ(interface.sent, QStringList("act: well"));
}

TEST_F(InterfaceActions, aHelpButtonSendsTheActionOfItsOnlyActionWhichCarriesTheTag)
{
    interface.load(R"(<action name="helpAction"><property name="tag" stdset="0"><number>4</number></property>
        <property name="action" stdset="0"><string notr="true">act:</string></property></action>
        <widget class="QToolButton" name="helpButton"><addaction name="helpAction"/></widget>)");
    auto *button = interface.find<QToolButton>("helpButton");
    show();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(interface.sent, QStringList("act: helpAction"));
    EXPECT_EQ(tag(button->defaultAction()), 4);
    EXPECT_EQ(tag(button), -1);
    EXPECT_EQ(viewWithTag(interface.root, 4), nullptr);
}

TEST_F(InterfaceActions, settingControlsByCodeSendsNothing)
{
    interface.load(acting("QCheckBox", "box") + acting("FloatSlider", "slider") + acting("NSColorWell", "well")
        + acting("NSMatrix", "matrix", R"(<widget class="QRadioButton" name="cell"/>)")
        + acting("QComboBox", "popUp",
            R"(<property name="tags" stdset="0"><stringlist><string>1</string><string>2</string></stringlist></property>
            <item><property name="text"><string>A</string></property></item><item><property name="text"><string>B</string></property></item>)"));
    setState(interface.find("box"), NSOnState);
    setFloatValue(interface.find("slider"), 0.5f);
    setColor(interface.find("well"), NSColor::redColor());
    setState(interface.find("cell"), NSOnState);
    EXPECT_TRUE(selectItemWithTag(interface.find("popUp"), 2));
    EXPECT_TRUE(interface.sent.isEmpty());
    EXPECT_EQ(state(interface.find("box")), NSOnState);
    EXPECT_EQ(state(interface.find("cell")), NSOnState);
    EXPECT_EQ(floatValue(interface.find("slider")), 0.5f);
    EXPECT_EQ(color(interface.find("well")), NSColor::redColor());
}

TEST_F(InterfaceActions, performingAClickSendsTheActionUnlessTheControlIsDisabled)
{
    interface.load(acting("QCheckBox", "box"));
    performClick(interface.find("box"));
    EXPECT_EQ(interface.sent, QStringList("act: box"));
    EXPECT_EQ(state(interface.find("box")), NSOnState);
    setEnabled(interface.find("box"), false);
    performClick(interface.find("box"));
    EXPECT_EQ(interface.sent.size(), 1);
    EXPECT_EQ(state(interface.find("box")), NSOnState);
}

TEST_F(InterfaceActions, anUnknownSelectorIsOneLoggedLineWithFileAndObject)
{
    interface.load(
        R"(<widget class="QPushButton" name="button"><property name="action" stdset="0"><string>fly:</string></property></widget>)");
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: button: TestOwner has no action fly:"));
    performClick(interface.find("button"));
}

TEST_F(InterfaceActions, aViewThatSendsNoActionsIsOneLoggedLine)
{
    interface.load(acting("QLabel", "label"));
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: label: a QLabel sends no action"));
}

TEST_F(InterfaceActions, whatAnActionThrowsIsLoggedAndTheNextClickWorks)
{
    interface.owner.actions = {{"act:", [this](QObject *) {
                                    interface.sent += "thrown";
                                    throw NSException("Name", "reason");
                                }}};
    interface.load(acting("QPushButton", "button"));
    performClick(interface.find("button"));
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: act:: Name: reason"));
    performClick(interface.find("button"));
    EXPECT_EQ(interface.sent.size(), 2);
}

TEST_F(InterfaceActions, actionsEndWithTheLifeOfTheirOwner)
{
    auto owner = std::make_unique<QObject>();
    interface.owner.object = owner.get();
    interface.load(acting("QPushButton", "button"));
    owner.reset();
    performClick(interface.find("button"));
    EXPECT_TRUE(interface.sent.isEmpty());
}

TEST_F(InterfaceActions, anActionMayDestroyItsSender)
{
    interface.owner.actions = {{"act:", [](QObject *sender) { delete sender; }}};
    interface.load(acting("QComboBox", "popUp", "<item><property name=\"text\"><string>A</string></property></item>"));
    QPointer<QComboBox> popUp = interface.find<QComboBox>("popUp");
    Q_EMIT popUp->activated(0);
    EXPECT_TRUE(popUp.isNull());
}
