// A hot key field takes keys, and nothing else puts a text into it.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/textfields/FieldEditor.h"

#include <QAccessible>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <linux/input-event-codes.h>

namespace {

class HotKeyFieldProtection : public PaneOnHotKeyPage
{
protected:
    /// The page with the field for S in focus, and text waiting to be pasted.
    void showPageWithTextToPaste()
    {
        QGuiApplication::clipboard()->setText("pasted", QClipboard::Clipboard);
        QGuiApplication::clipboard()->setText("selected", QClipboard::Selection);
        store().set(KTXsuppressHKeysTaken, true);
        storeKey(Right, 126);
        showPage();
        focus(Screenshot);
        setHidden(viewWithTag(pane().mainView(), 5), true);
    }
    void expectUnchanged()
    {
        EXPECT_EQ(shown(Screenshot), "S");
        EXPECT_EQ(keyCode(Screenshot), 1);
        EXPECT_EQ(focusedRow(), Screenshot);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_FALSE(openAlert());
        expectNothingStored();
    }
    void expectMarkersRefreshed() { EXPECT_EQ(markedRows(), (QList<int>{Up, Right})); }
    void pressMouse(MouseButton button)
    {
        clickAt(field(Screenshot)->mapToGlobal(field(Screenshot)->rect().center()), button);
    }
    void click(MouseButton button)
    {
        pressMouse(button);
        press(KEY_RIGHTSHIFT); // by then the click has been handled
    }
    void expectMenuThatRestoresAlone()
    {
        const auto openMenu = [] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); };
        ASSERT_TRUE(waitUntil([&] { return openMenu() != nullptr; }));
        ASSERT_EQ(openMenu()->actions().size(), 1);
        EXPECT_EQ(openMenu()->actions().constFirst()->text(), "Restore this key");
        openMenu()->close();
        EXPECT_TRUE(waitUntil([&] { return openMenu() == nullptr && hasKeyboard(window()); }));
    }
};

} // namespace

TEST_F(HotKeyFieldProtection, pastingByKeysTakesTheKeyOrNothing)
{
    showPageWithTextToPaste();
    press(KEY_INSERT, {KEY_LEFTSHIFT});
    expectUnchanged();
    press(KEY_V, {KEY_LEFTCTRL});
    expectTaken(Screenshot, 9, "V");
}

TEST_F(HotKeyFieldProtection, pastingByTheMiddleButtonOnlyRefreshesTheMarkers)
{
    showPageWithTextToPaste();
    click(MouseButton::Middle);
    expectMarkersRefreshed();
    expectUnchanged();
}

TEST_F(HotKeyFieldProtection, itsMenuHasNothingToEdit)
{
    showPageWithTextToPaste();
    pressMouse(MouseButton::Right);
    expectMenuThatRestoresAlone();
    expectUnchanged();
    press(KEY_COMPOSE);
    expectMenuThatRestoresAlone();
    expectUnchanged();
    press(KEY_F10, {KEY_LEFTSHIFT});
    expectMenuThatRestoresAlone();
    expectUnchanged();
}

TEST_F(HotKeyFieldProtection, deletingKeysDeleteNothing)
{
    showPageWithTextToPaste();
    for (const int key : {KEY_BACKSPACE, KEY_DELETE}) {
        for (const QList<int> &held : {QList<int>{}, QList<int>{KEY_LEFTCTRL}, QList<int>{KEY_LEFTSHIFT}}) {
            field(Screenshot)->selectAll();
            press(key, held);
            expectUnchanged();
        }
    }
}

TEST_F(HotKeyFieldProtection, thereIsNothingToUndo)
{
    showPageWithTextToPaste();
    press(KEY_B);
    expectTaken(Screenshot, 11, "B");
    field(Screenshot)->undo();
    EXPECT_EQ(shown(Screenshot), "B");
    press(KEY_BACKSPACE, {KEY_LEFTALT}); // undoes, in a text field
    EXPECT_EQ(shown(Screenshot), "B");
    press(KEY_Z, {KEY_LEFTCTRL});
    expectTaken(Screenshot, 6, "Z");
}

TEST_F(HotKeyFieldProtection, aDragIsTurnedAway)
{
    showPageWithTextToPaste();
    QMimeData text;
    text.setText("dropped");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(field(Screenshot), &enter);
    EXPECT_FALSE(enter.isAccepted());
    EXPECT_FALSE(field(Screenshot)->acceptDrops());
    expectUnchanged();
}

TEST_F(HotKeyFieldProtection, inputMethodsAreKeptAwayAndTheirTextRefused)
{
    showPageWithTextToPaste();
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QApplication::sendEvent(field(Screenshot), &query);
    EXPECT_FALSE(query.value(Qt::ImEnabled).toBool());
    QInputMethodEvent text;
    text.setCommitString("漢");
    QApplication::sendEvent(field(Screenshot), &text);
    expectMarkersRefreshed();
    expectUnchanged();
}

TEST_F(HotKeyFieldProtection, anAssistiveToolReadsAndSelectsButSetsNoText)
{
    showPageWithTextToPaste();
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(field(Screenshot));
    ASSERT_TRUE(seen && seen->textInterface());
    EXPECT_EQ(seen->role(), QAccessible::EditableText);
    EXPECT_TRUE(seen->state().readOnly && seen->state().focused && !seen->state().editable);
    seen->setText(QAccessible::Value, "typed");
    if (QAccessibleEditableTextInterface *editor = seen->editableTextInterface()) {
        editor->insertText(0, "typed");
        editor->replaceText(0, 1, "typed");
        editor->deleteText(0, 1);
    }
    expectUnchanged();
    EXPECT_EQ(seen->text(QAccessible::Value), "S");
    EXPECT_EQ(seen->text(QAccessible::Name), field(Screenshot)->accessibleName());
    QAccessibleTextInterface *text = seen->textInterface();
    EXPECT_EQ(text->text(0, text->characterCount()), "S");
    text->setSelection(0, 0, 1);
    EXPECT_EQ(field(Screenshot)->selectedText(), "S");
    press(KEY_B);
    expectTaken(Screenshot, 11, "B");
    EXPECT_EQ(seen->text(QAccessible::Value), "B");
}

TEST_F(HotKeyFieldProtection, anAssistiveToolThatIsThereFromTheStartSetsNoTextEither)
{
    QAccessible::setActive(true);
    showPageWithTextToPaste();
    for (int row = Up; row <= Snap; ++row) {
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(field(row));
        EXPECT_EQ(seen->editableTextInterface(), nullptr) << row;
        seen->setText(QAccessible::Value, "typed");
        EXPECT_NE(shown(row), "typed") << row;
    }
    QAccessible::setActive(false);
    expectUnchanged();
}

TEST_F(HotKeyFieldProtection, anEventThatIsNoKeyPressOnlyRefreshesTheMarkers)
{
    showPageWithTextToPaste();
    FieldEditor *editor = FieldEditor::existingForWindow(window());
    EXPECT_FALSE(pane().controlTextShouldBeginEditing(field(Screenshot), editor));
    expectMarkersRefreshed();
    expectUnchanged();
    EXPECT_FALSE(pane().controlTextViewDoCommandBySelector(field(Screenshot), editor, "moveLeft:"));
    expectUnchanged();
}

TEST_F(HotKeyFieldProtection, aViewThatIsNoRowStoresNothing)
{
    showPageWithTextToPaste();
    QLineEdit *stranger = field(Screenshot);
    for (const int strangersTag : {-1, 11, 100}) {
        setHidden(viewWithTag(pane().mainView(), 5), true);
        stranger->setProperty("tag", strangersTag);
        press(KEY_B); // free
        press(KEY_W); // in use
        stranger->setProperty("tag", int(Screenshot));
        expectMarkersRefreshed();
        expectUnchanged();
        EXPECT_EQ(*pane().keyCodes(), (QList<VirtualKeyCode>{126, 126, 125, 123, 44, 43, 1, 13, 49, 53, 36}));
        EXPECT_EQ(bell.rings(), 0);
    }
}
