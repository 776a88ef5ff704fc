#include "TestInterface.h"
#include "platform/appkit/controls/Controls.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QScopeGuard>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {

const QByteArray page = R"(<widget class="QTabWidget" name="tabs"><widget class="QWidget" name="first">
    <attribute name="title"><string>General</string></attribute><attribute name="toolTip"><string>Tip</string></attribute>
    <property name="identifier" stdset="0"><string>General</string></property>
    <widget class="QLabel" name="label"><property name="text"><string>Colour &amp; light</string></property>
        <property name="toolTip"><string>Tip</string></property><property name="accessibleName"><string>Name</string></property></widget>
    <widget class="QLabel" name="left"><property name="text"><string notr="true">General</string></property></widget>
    <widget class="QLabel" name="unknown"><property name="text"><string>Nowhere</string></property></widget>
    <widget class="QPushButton" name="button"><property name="text"><string>Name</string></property>
        <property name="action" stdset="0"><string>act:</string></property></widget>
    <widget class="QComboBox" name="popUp"><property name="tags" stdset="0"><stringlist><string>5</string></stringlist></property>
        <item><property name="text"><string>Item</string></property></item></widget>
    </widget></widget>)";

} // namespace

class InterfaceTexts : public testing::Test
{
protected:
    void loadInLanguage(const QString &language)
    {
        const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
        QLocale::setDefault(QLocale(language));
        interface.bundle.writeStringTable("de", "Test",
            {{"General", "Allgemein"}, {"Tip", "Hinweis"}, {"Colour & light", "Farbe & Licht"}, {"Name", "Bezeichnung"},
                {"Item", "Eintrag"}, {"act:", "falsch:"}, {"5", "6"}});
        interface.bundle.writeStringTable("en", "Test", {{"Colour & light", "Colour and light"}});
        ASSERT_TRUE(interface.load(page));
    }

    TestInterface interface;
};

TEST_F(InterfaceTexts, everyTextIsInTheUsersLanguage)
{
    loadInLanguage("de_DE");
    auto *tabs = interface.find<QTabWidget>("tabs");
    EXPECT_EQ(tabs->tabText(0), "Allgemein");
    EXPECT_EQ(tabs->tabToolTip(0), "Hinweis");
    EXPECT_EQ(stringValue(interface.find("label")), "Farbe & Licht");
    EXPECT_EQ(interface.find("label")->toolTip(), "Hinweis");
    EXPECT_EQ(interface.find("label")->accessibleName(), "Bezeichnung");
    EXPECT_EQ(stringValue(interface.find("button")), "Bezeichnung");
    EXPECT_EQ(interface.find<QComboBox>("popUp")->itemText(0), "Eintrag");
}

TEST_F(InterfaceTexts, namesAndTextsMarkedAsSuchStayAsTheyAre)
{
    loadInLanguage("de_DE");
    EXPECT_EQ(stringValue(interface.find("left")), "General");
    EXPECT_EQ(indexOfTabViewItemWithIdentifier(interface.find("tabs"), "General"), 0);
    EXPECT_EQ(selectedItemTag(interface.find("popUp")), 5);
    performClick(interface.find("button"));
    EXPECT_EQ(interface.sent, QStringList("act: button"));
}

TEST_F(InterfaceTexts, aTextThatTheTableDoesNotHoldStaysAsItIs)
{
    loadInLanguage("de_DE");
    EXPECT_EQ(stringValue(interface.find("unknown")), "Nowhere");
}

TEST_F(InterfaceTexts, anotherLanguageReadsItsOwnTable)
{
    loadInLanguage("en_GB");
    EXPECT_EQ(stringValue(interface.find("label")), "Colour and light");
    EXPECT_EQ(interface.find<QTabWidget>("tabs")->tabText(0), "General");
}
