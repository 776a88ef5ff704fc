#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/ConflictMarker.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/richtext/NSAttributedString.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
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
