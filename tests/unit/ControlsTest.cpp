#include "platform/appkit/controls/Controls.h"
#include "Wait.h"
#include "platform/appkit/controls/ConflictMarker.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/StyledLabel.h"
#include "platform/appkit/richtext/NSAttributedString.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <gtest/gtest.h>

TEST(Controls, onAnAbsentControlEverythingDoesNothing)
{
    const Outlet<QWidget> absent;
    setState(absent, NSOnState);
    setStringValue(absent, "text");
    setFloatValue(absent, 1);
    setEnabled(absent, true);
    setHidden(absent, false);
    setTextColor(absent, Qt::red);
    setBackgroundColor(absent, Qt::red);
    setColor(absent, nullptr);
    selectTabViewItemAtIndex(absent, 1);
    performClick(absent);
    EXPECT_EQ(tag(absent), -1);
    EXPECT_EQ(state(absent), NSOffState);
    EXPECT_EQ(stringValue(absent), QString());
    EXPECT_EQ(floatValue(absent), 0);
    EXPECT_FALSE(isEnabled(absent));
    EXPECT_FALSE(isHidden(absent));
    EXPECT_FALSE(selectItemWithTag(absent, 1));
    EXPECT_EQ(selectedItemTag(absent), -1);
    EXPECT_FALSE(isPopUp(absent));
    EXPECT_EQ(color(absent), nullptr);
    EXPECT_EQ(selectedTabIndex(absent), 0);
    EXPECT_EQ(indexOfTabViewItemWithIdentifier(absent, "x"), 0);
    EXPECT_EQ(viewWithTag(nullptr, 1), nullptr);
}

TEST(Controls, onAControlOfAnotherKindEverythingDoesNothing)
{
    QWidget plain;
    setState(&plain, NSOnState);
    setStringValue(&plain, "text");
    setFloatValue(&plain, 1);
    performClick(&plain);
    EXPECT_EQ(state(&plain), NSOffState);
    EXPECT_EQ(stringValue(&plain), QString());
    EXPECT_TRUE(plain.dynamicPropertyNames().isEmpty());
    EXPECT_FALSE(selectItemWithTag(&plain, 1));
}

TEST(Controls, theStateOfACheckBoxIsOffOnOrMixed)
{
    QCheckBox box;
    setState(&box, NSOnState);
    EXPECT_EQ(state(&box), NSOnState);
    setState(&box, NSMixedState);
    EXPECT_EQ(state(&box), NSOnState);
    box.setTristate(true);
    setState(&box, NSMixedState);
    EXPECT_EQ(state(&box), NSMixedState);
    setState(&box, NSOffState);
    EXPECT_EQ(state(&box), NSOffState);
}

TEST(Controls, aChosenRadioButtonCanBeSetOffWithoutChoosingAnother)
{
    QWidget parent;
    QRadioButton one(&parent);
    QRadioButton other(&parent);
    one.setChecked(true);
    setState(&one, NSOffState);
    EXPECT_EQ(state(&one), NSOffState);
    setState(&one, NSOnState);
    setState(&other, NSOnState);
    EXPECT_EQ(state(&one), NSOffState);

    QButtonGroup group;
    group.addButton(&one);
    group.addButton(&other);
    setState(&other, NSOffState);
    EXPECT_EQ(state(&other), NSOffState);
    EXPECT_TRUE(group.exclusive());
}

TEST(Controls, theTextOfEveryKindOfControlIsSet)
{
    QLineEdit field;
    QLabel label;
    QCheckBox box;
    ConflictMarker marker;
    QTextEdit view;
    for (QObject *control : QList<QObject *>{&field, &label, &box, &marker, &view}) {
        setStringValue(control, "some text");
        EXPECT_EQ(stringValue(control), "some text") << control->metaObject()->className();
    }
}

TEST(Controls, aTextSetByCodeIsNeverTakenForMarkup)
{
    QLabel label;
    setStringValue(&label, "<b>1.2</b>");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    QLabel rich;
    rich.setTextFormat(Qt::RichText);
    setStringValue(&rich, "<b>1.2</b>");
    EXPECT_EQ(rich.textFormat(), Qt::RichText);
}

TEST(Controls, aMarkerTellsOfEveryTextAndShowsNone)
{
    ConflictMarker marker;
    QSignalSpy told(&marker, &ConflictMarker::textSet);
    setStringValue(&marker, "A");
    setStringValue(&marker, "A");
    EXPECT_EQ(told.size(), 2);
    EXPECT_TRUE(marker.sizePolicy().retainSizeWhenHidden());
}

TEST(Controls, enablingAndHidingWork)
{
    QCheckBox box;
    setEnabled(&box, false);
    EXPECT_FALSE(isEnabled(&box));
    setHidden(&box, true);
    EXPECT_TRUE(isHidden(&box));
    QAction action;
    setEnabled(&action, false);
    setHidden(&action, true);
    EXPECT_FALSE(isEnabled(&action));
    EXPECT_TRUE(isHidden(&action));
}

TEST(Controls, aPopUpToldToSelectATagThatNoItemHasStaysAsItIs)
{
    QComboBox popUp;
    popUp.addItem("a", 52);
    popUp.addItem("b", 53);
    popUp.addItem("none");
    EXPECT_TRUE(selectItemWithTag(&popUp, 53));
    EXPECT_FALSE(selectItemWithTag(&popUp, -1));
    EXPECT_EQ(selectedItemTag(&popUp), 53);
    popUp.setCurrentIndex(2);
    EXPECT_EQ(selectedItemTag(&popUp), -1);
    EXPECT_TRUE(isPopUp(&popUp));
}

TEST(Controls, aPageIsFoundByItsIdentifier)
{
    QTabWidget tabs;
    tabs.addTab(new QWidget, "0");
    tabs.addTab(new QWidget, "1");
    tabs.widget(1)->setProperty("identifier", "hotkeys");
    EXPECT_EQ(indexOfTabViewItemWithIdentifier(&tabs, "hotkeys"), 1);
    EXPECT_EQ(indexOfTabViewItemWithIdentifier(&tabs, "HotKeys"), NSNotFound);
    EXPECT_EQ(indexOfTabViewItemWithIdentifier(&tabs, ""), NSNotFound);
}

TEST(Controls, aNamedColourBringsAnotherThatItReadsOn)
{
    QLineEdit field;
    setBackgroundColor(&field, Qt::white);
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::black));
    setBackgroundColor(&field, QColor(20, 40, 80));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::white));

    const QColor lightWindow(240, 240, 240);
    QWidget window;
    QLabel label(&window);
    window.setPalette(lightWindow);
    setTextColor(&label, Qt::red);
    EXPECT_EQ(textColor(&label), QColor(Qt::red));
    const QColor shown = label.palette().color(QPalette::WindowText);
    EXPECT_EQ(shown.hsvHue(), 0);
    EXPECT_GE(contrastRatio(shown, lightWindow), 4.5);
    EXPECT_EQ(label.palette().color(QPalette::Window), lightWindow) << "it reads there";
    EXPECT_FALSE(label.autoFillBackground()) << "whatever it stands on shows";
}

TEST(Controls, aTextColourThatDoesNotReadOnItsWindowComesNearerToTheTextsOwn)
{
    QWidget window;
    QLabel label(&window);
    for (const auto &[ground, text] :
        {std::pair(QColor(36, 37, 40), QColor(240, 240, 240)), std::pair(QColor(240, 240, 240), QColor(20, 20, 20))}) {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::WindowText, text);
        window.setPalette(palette);
        for (const QColor &color : {QColor(Qt::yellow), QColor(Qt::blue), QColor(Qt::darkRed)}) {
            setTextColor(&label, color);
            const QColor shown = label.palette().color(QPalette::WindowText);
            EXPECT_EQ(label.palette().color(QPalette::Window), ground) << "no paper";
            EXPECT_GE(contrastRatio(shown, ground), 3) << color.name().toStdString();
            EXPECT_EQ(shown == color, contrastRatio(color, ground) >= 3) << color.name().toStdString();
            EXPECT_EQ(textColor(&label), color);
        }
    }
}

TEST(Controls, blackWhiteAndRedAreNamesThatAreDrawnAsTheThemeHasThem)
{
    QWidget window;
    QPalette dark = window.palette();
    dark.setColor(QPalette::Window, QColor(36, 37, 40));
    dark.setColor(QPalette::WindowText, QColor(232, 233, 235));
    dark.setColor(QPalette::Base, QColor(43, 45, 49));
    dark.setColor(QPalette::Text, QColor(231, 232, 234));
    window.setPalette(dark);
    QLabel label(&window);
    QLineEdit field(&window);
    setTextColor(&label, Qt::black);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), dark.color(QPalette::WindowText));
    EXPECT_EQ(textColor(&label), QColor(Qt::black));
    setTextColor(&label, Qt::red);
    EXPECT_GE(contrastRatio(label.palette().color(QPalette::WindowText), dark.color(QPalette::Window)), 4.5);
    EXPECT_EQ(textColor(&label), QColor(Qt::red));
    setBackgroundColor(&field, Qt::white);
    EXPECT_EQ(field.palette().color(QPalette::Base), dark.color(QPalette::Base)) << "no white box";
    EXPECT_EQ(field.palette().color(QPalette::Text), dark.color(QPalette::Text));
    EXPECT_EQ(backgroundColor(&field), QColor(Qt::white));
    EXPECT_EQ(textColor(&field), QColor(Qt::black));
}

TEST(Controls, namedColoursFollowAChangeOfThemeAndStayWhatTheyWereSetTo)
{
    const QPalette before = QApplication::palette();
    QLineEdit field;
    setBackgroundColor(&field, Qt::white);
    QPalette dark = before;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Window, Qt::darkGray);
    QApplication::setPalette(dark);
    EXPECT_TRUE(waitUntil([&] { return field.palette().color(QPalette::Window) == QColor(Qt::darkGray); }));
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(backgroundColor(&field), QColor(Qt::white));
    EXPECT_EQ(textColor(&field), QColor(Qt::black));
    QApplication::setPalette(before);
}

namespace {

NSAttributedString threeLines()
{
    return NSAttributedString::fromRTF("{\\rtf1 one\\par two\\par three}", {});
}

double heightOfText(const QTextEdit &view)
{
    return view.document()->documentLayout()->blockBoundingRect(view.document()->lastBlock()).bottom();
}

} // namespace

TEST(ATextView, laysItsTextOutWhenItIsShown)
{
    QWidget window;
    QTextEdit view(&window);
    window.show();
    view.hide();
    setAttributedString(&view, threeLines());
    EXPECT_EQ(view.toPlainText(), "one\ntwo\nthree");
    EXPECT_EQ(heightOfText(view), 0);
    view.show();
    EXPECT_GT(heightOfText(view), 3 * view.fontMetrics().ascent());
}

TEST(ATextView, laysItsTextOutAtOnceOnScreen)
{
    QTextEdit view;
    view.show();
    setAttributedString(&view, threeLines());
    EXPECT_GT(heightOfText(view), 3 * view.fontMetrics().ascent());
}

TEST(ATextView, showsTheLastOfTheTextsThatItWasGivenWhileHidden)
{
    QTextEdit view;
    setAttributedString(&view, NSAttributedString::fromRTF("{\\rtf1 first}", {}));
    setAttributedString(&view, threeLines());
    view.show();
    EXPECT_EQ(view.toPlainText(), "one\ntwo\nthree");
    EXPECT_GT(heightOfText(view), 3 * view.fontMetrics().ascent());
}
