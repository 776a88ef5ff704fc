// Which field is being edited, and how it shows it.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "platform/appkit/colors/SystemColors.h"
#include "platform/appkit/controls/StyledLabel.h"
#include "platform/appkit/textfields/FieldEditor.h"

#include <QAccessible>
#include <linux/input-event-codes.h>

namespace {

class OwnField : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;
};

class HotKeyFieldColor : public PaneOnHotKeyPage
{
protected:
    static QColor base(const QWidget *view) { return view->palette().color(QPalette::Base); }
    QColor background(int row) { return base(field(row)); }
    FieldEditor *editor() { return FieldEditor::existingForWindow(window()); }
    QColor selected() { return liveColor(NSColor::selectedControlColor()); }
};

} // namespace

TEST_F(HotKeyFieldColor, allKeysAreWhiteWithBlackTextAtFirst)
{
    showPage();
    for (int row = 0; row < RowCount; ++row) {
        EXPECT_EQ(background(row), QColor(Qt::white)) << row;
        EXPECT_EQ(field(row)->palette().color(QPalette::Text), QColor(Qt::black)) << row;
    }
}

TEST_F(HotKeyFieldColor, theFieldWithTheFocusHasTheSelectionsColor)
{
    showPage();
    for (int row = 0; row < RowCount; ++row) {
        focus(row);
        EXPECT_EQ(editor()->delegate(), field(row));
        EXPECT_EQ(editor()->insertionPointColor(), selected());
        for (int other = 0; other < RowCount; ++other)
            EXPECT_EQ(background(other), other == row ? selected() : QColor(Qt::white)) << row << ' ' << other;
    }
}

TEST_F(HotKeyFieldColor, itsTextReadsOnThatColor)
{
    showPage();
    focus(Up);
    EXPECT_GE(contrastRatio(field(Up)->palette().color(QPalette::Text), background(Up)), 4.5);
}

TEST_F(HotKeyFieldColor, aFieldThatLosesTheFocusIsWhiteAgain)
{
    showPage();
    focus(Cancel);
    control<QTabWidget>("tabbedView")->tabBar()->setFocus();
    EXPECT_EQ(editor()->delegate(), nullptr);
    EXPECT_EQ(background(Cancel), QColor(Qt::white));
}

TEST_F(HotKeyFieldColor, anotherWindowInFrontOnlyInterruptsTheEditing)
{
    showPage();
    focus(Up);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(&other); }));
    EXPECT_EQ(editor()->delegate(), field(Up));
    window()->activateWindow();
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(window()); }));
    press(KEY_B);
    expectTaken(Up, 11, "B");
}

TEST_F(HotKeyFieldColor, editingEndsWhenItsPageIsTurned)
{
    showPage();
    focus(Up);
    selectTabViewItemAtIndex(control("tabbedView"), 2);
    runPendingEvents();
    EXPECT_EQ(editor()->delegate(), nullptr);
    EXPECT_EQ(background(Up), QColor(Qt::white));
}

TEST_F(HotKeyFieldColor, theHookAnswersNoneAndLeavesOtherViewsAlone)
{
    showPage();
    OwnField own(control("movementBox"));
    QLineEdit elsewhere(window());
    QLabel label(control("movementBox"));
    for (QWidget *client : QWidgetList{&own, &elsewhere, &label, window(), nullptr}) {
        const QPalette before = client ? client->palette() : QPalette();
        EXPECT_EQ(pane().windowWillReturnFieldEditorToObject(window(), client), nullptr);
        EXPECT_EQ(client ? client->palette() : QPalette(), before);
    }
}

TEST_F(HotKeyFieldColor, theHookColorsTheClientsFirstSubviewToo)
{
    showPage();
    focus(Up);
    QWidget first(field(Up));
    QWidget second(field(Up));
    const QColor before = second.palette().color(QPalette::Window);
    pane().windowWillReturnFieldEditorToObject(window(), field(Up));
    EXPECT_EQ(first.palette().color(QPalette::Window), selected());
    EXPECT_EQ(second.palette().color(QPalette::Window), before);
}

TEST_F(HotKeyFieldColor, theHookMakesNoEditorOfItsOwn)
{
    showPage();
    QWidget otherWindow;
    EXPECT_EQ(pane().windowWillReturnFieldEditorToObject(&otherWindow, field(Up)), nullptr);
    EXPECT_EQ(FieldEditor::existingForWindow(&otherWindow), nullptr);
    EXPECT_EQ(background(Up), QColor(Qt::white));
}

TEST_F(HotKeyFieldColor, aTakenKeyKeepsTheFieldInTheSelectionsColor)
{
    showPage();
    pressIn(Up, KEY_B);
    EXPECT_EQ(background(Up), selected());
    EXPECT_EQ(editor()->delegate(), field(Up));
}

TEST_F(HotKeyFieldColor, aScreenReaderIsToldWhatToDo)
{
    showPage();
    for (int row = 0; row < RowCount; ++row) {
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(field(row));
        EXPECT_TRUE(interface->text(QAccessible::Description).endsWith(". Press a key")) << row;
        EXPECT_TRUE(interface->text(QAccessible::Name).startsWith("Key to ")) << row;
    }
}

#include "HotKeyFieldColorTest.moc"
