// What a text field of an interface file asks its delegate, and the window's.

#include "CapturedLog.h"
#include "TestInterface.h"
#include "Wait.h"
#include "platform/appkit/NSApplication.h"
#include "platform/appkit/textfields/FieldEditor.h"
#include "platform/appkit/textfields/NSControlTextEditingDelegate.h"
#include "platform/appkit/textfields/NSWindowDelegate.h"
#include "platform/appkit/textfields/internal/KeyBindings.h"

#include <QKeyEvent>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <stdexcept>

namespace {

class TextFields : public testing::Test, public NSControlTextEditingDelegate, public NSWindowDelegate
{
public:
    bool controlTextShouldBeginEditing(QWidget *control, FieldEditor *fieldEditor) override
    {
        const NSEvent event = NSApplication::sharedApplication()->currentEvent();
        const QString what = event.type == NSEventType::KeyDown ? QString::number(event.keyCode.number()) : "other";
        asked += "begin " + control->objectName() + ' ' + what;
        lastEditor = fieldEditor;
        if (throws)
            throw std::runtime_error("refused");
        return mayBegin;
    }
    bool controlTextViewDoCommandBySelector(QWidget *control, FieldEditor *textView, const QString &command) override
    {
        asked += "command " + control->objectName() + ' ' + command;
        lastEditor = textView;
        return commandIsDone;
    }
    FieldEditor *windowWillReturnFieldEditorToObject(QWidget *window, QWidget *client) override
    {
        const FieldEditor *editor = FieldEditor::existingForWindow(window);
        asked += (editor && editor->delegate() == client ? "edits " : "left ") + client->objectName();
        return ownEditor;
    }

protected:
    TextFields()
    {
        interface.owner.textDelegate = this;
        interface.owner.windowDelegate = this;
    }
    void load()
    {
        interface.load(R"(<widget class="QLineEdit" name="one"><property name="delegate" stdset="0">
            <string>owner</string></property></widget><widget class="QLineEdit" name="two">
            <property name="delegate" stdset="0"><string>owner</string></property></widget>
            <widget class="QLineEdit" name="plain"/>)");
        interface.root->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(interface.root));
        interface.find("plain")->setFocus();
        asked.clear();
    }
    QLineEdit *field(const char *name) { return interface.find<QLineEdit>(name); }
    void press(QLineEdit *to, int evdev, Qt::Key key, const QString &text)
    {
        send(to, QEvent::KeyPress, evdev, key, text, ++now);
        send(to, QEvent::KeyRelease, evdev, key, text, ++now);
    }
    void send(QLineEdit *to, QEvent::Type type, int evdev, Qt::Key key, const QString &text, quint64 time,
        bool isAutoRepeat = false)
    {
        QKeyEvent event(type, key, {}, quint32(evdev + evdevToX11), 0, 0, text, isAutoRepeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(to, &event);
    }

    quint64 now = 0;
    TestInterface interface;
    QStringList asked;
    FieldEditor *lastEditor = nullptr;
    FieldEditor *ownEditor = nullptr;
    bool mayBegin = false;
    bool commandIsDone = false;
    bool throws = false;
};

NSEvent pressOf(VirtualKeyCode keyCode, quint32 flags = 0)
{
    return {NSEventType::KeyDown, keyCode, flags};
}

} // namespace

TEST_F(TextFields, aFieldThatGainsTheFocusIsEditedAndLeftAfterwards)
{
    load();
    field("one")->setFocus();
    EXPECT_EQ(asked, QStringList{"edits one"});
    field("two")->setFocus();
    EXPECT_EQ(asked, (QStringList{"edits one", "left one", "edits two"}));
    field("plain")->setFocus();
    EXPECT_EQ(asked.last(), "left two");
    EXPECT_EQ(asked.size(), 4);
}

TEST_F(TextFields, typingAsksAndAnAnswerOfNoKeepsTheText)
{
    load();
    field("one")->setFocus();
    press(field("one"), KEY_A, Qt::Key_A, "a");
    EXPECT_EQ(asked.last(), "begin one 0");
    EXPECT_EQ(lastEditor, FieldEditor::existingForWindow(interface.root));
    EXPECT_EQ(field("one")->text(), "");
}

TEST_F(TextFields, anAnswerOfYesLetsTypingGoOnUntilTheFieldIsLeft)
{
    load();
    mayBegin = true;
    field("one")->setFocus();
    asked.clear();
    press(field("one"), KEY_A, Qt::Key_A, "a");
    press(field("one"), KEY_B, Qt::Key_B, "b");
    EXPECT_EQ(field("one")->text(), "ab");
    EXPECT_EQ(asked, QStringList{"begin one 0"});
    mayBegin = false;
    field("two")->setFocus();
    field("one")->setFocus();
    press(field("one"), KEY_C, Qt::Key_C, "c");
    EXPECT_EQ(field("one")->text(), "ab");
    EXPECT_EQ(asked.last(), "begin one 8");
}

TEST_F(TextFields, aKeyThatStaysDownIsAskedAboutOnce)
{
    load();
    QLineEdit *one = field("one");
    send(one, QEvent::KeyPress, KEY_A, Qt::Key_A, "a", 1);
    send(one, QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", 500, true);
    send(one, QEvent::KeyPress, KEY_A, Qt::Key_A, "a", 500, true);
    send(one, QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", 540);
    send(one, QEvent::KeyPress, KEY_A, Qt::Key_A, "a", 540);
    EXPECT_EQ(asked, QStringList{"begin one 0"});
    send(field("two"), QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", 580);
    send(field("two"), QEvent::KeyPress, KEY_A, Qt::Key_A, "a", 580);
    EXPECT_EQ(asked.size(), 1) << "not in the next field either";
    send(one, QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", 600);
    send(one, QEvent::KeyPress, KEY_A, Qt::Key_A, "a", 640);
    EXPECT_EQ(asked.size(), 2);
}

TEST_F(TextFields, aKeyTypedTwiceWithinAMillisecondIsAskedAboutTwice)
{
    load();
    QLineEdit *one = field("one");
    now = 7000;
    for (const bool isTakenForRepeat : {false, true}) { // by the toolkit, as the events arrive
        asked.clear();
        send(one, QEvent::KeyPress, KEY_A, Qt::Key_A, "a", now);
        send(one, QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", now, isTakenForRepeat);
        send(one, QEvent::KeyPress, KEY_A, Qt::Key_A, "a", now, isTakenForRepeat);
        send(one, QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", ++now);
        EXPECT_EQ(asked.size(), 2);
    }
}

TEST_F(TextFields, aKeyThatWentDownElsewhereAndRepeatsIsNotAskedAbout)
{
    load();
    press(field("one"), KEY_A, Qt::Key_A, "a");
    press(field("one"), KEY_B, Qt::Key_B, "b");
    asked.clear();
    send(field("one"), QEvent::KeyRelease, KEY_A, Qt::Key_A, "a", 3);
    send(field("one"), QEvent::KeyPress, KEY_A, Qt::Key_A, "a", 3);
    send(field("one"), QEvent::KeyPress, KEY_B, Qt::Key_B, "b", 9000, true);
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(TextFields, theCurrentEventEndsWithTheQuestion)
{
    load();
    press(field("one"), KEY_A, Qt::Key_A, "a");
    EXPECT_EQ(NSApplication::sharedApplication()->currentEvent().type, NSEventType::Other);
}

TEST_F(TextFields, commandsGoToTheDelegateFirst)
{
    load();
    field("one")->setText("text");
    press(field("one"), KEY_HOME, Qt::Key_Home, "");
    EXPECT_EQ(asked, QStringList{"command one scrollToBeginningOfDocument:"});
    EXPECT_EQ(field("one")->cursorPosition(), 0) << "handled as usual";
    commandIsDone = true;
    press(field("one"), KEY_END, Qt::Key_End, "");
    EXPECT_EQ(field("one")->cursorPosition(), 0) << "handled by the delegate";
}

TEST_F(TextFields, aDelegateThatThrowsIsLoggedAndChangesNothing)
{
    load();
    throws = true;
    mayBegin = true;
    const CapturedLog log;
    press(field("one"), KEY_A, Qt::Key_A, "a");
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().contains("Test.ui: control:textShouldBeginEditing:"));
    EXPECT_EQ(field("one")->text(), "");
}

TEST_F(TextFields, aWindowDelegateMayBringAnEditorOfItsOwn)
{
    load();
    QWidget other;
    ownEditor = FieldEditor::forWindow(&other);
    field("one")->setFocus();
    press(field("one"), KEY_A, Qt::Key_A, "a");
    EXPECT_EQ(lastEditor, ownEditor);
    EXPECT_EQ(FieldEditor::existingForWindow(interface.root)->delegate(), nullptr) << "the usual one rests";
    EXPECT_EQ(ownEditor->delegate(), field("one"));
    field("plain")->setFocus();
    EXPECT_EQ(ownEditor->delegate(), nullptr);
}

TEST_F(TextFields, anOwnerThatIsNoDelegateIsALoggedLine)
{
    interface.owner.textDelegate = nullptr;
    const CapturedLog log;
    load();
    EXPECT_EQ(log.lines().value(0), "lumaroo: Test.ui: one: TestOwner is no delegate of a text field");
}

TEST_F(TextFields, aFieldIsNotAskedAboutAnyMoreWhenItsOwnerIsGone)
{
    QObject owner;
    auto actionsEndWith = std::make_unique<QObject>();
    interface.owner.object = actionsEndWith.get();
    load();
    actionsEndWith.reset();
    field("one")->setFocus();
    press(field("one"), KEY_A, Qt::Key_A, "a");
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(field("one")->text(), "");
}

TEST_F(TextFields, anEditorWithoutAFieldDoesNothing)
{
    load();
    FieldEditor *editor = FieldEditor::forWindow(interface.root);
    EXPECT_EQ(editor, FieldEditor::forWindow(interface.root)) << "one for each window";
    EXPECT_EQ(editor->delegate(), nullptr);
    editor->setBackgroundColor(Qt::red);
    editor->setSelectedRange(0, 1);
    editor->selectAll();
    editor->insertTab(nullptr);
    EXPECT_EQ(FieldEditor::existingForWindow(nullptr), nullptr);
}

TEST_F(TextFields, anEditorSelectsAndMovesTheFocusOfItsField)
{
    load();
    field("one")->setText("text");
    field("one")->setFocus();
    FieldEditor *editor = FieldEditor::forWindow(interface.root);
    editor->selectAll();
    EXPECT_EQ(field("one")->selectedText(), "text");
    editor->setSelectedRange(1, 2);
    EXPECT_EQ(field("one")->selectedText(), "ex");
    editor->setSelectedRange(0, 0);
    EXPECT_FALSE(field("one")->hasSelectedText());
    editor->insertTab(field("one"));
    EXPECT_TRUE(field("two")->hasFocus());
    editor->insertBacktab(field("two"));
    EXPECT_TRUE(field("one")->hasFocus());
}

TEST(KeyBindings, aKeyPressIsReadFromTheHardwareAlone)
{
    const QKeyEvent press(
        QEvent::KeyPress, Qt::Key_Z, Qt::ShiftModifier | Qt::KeypadModifier, KEY_Y + evdevToX11, 0, 0, "Z");
    const auto event = keyDownEvent(press);
    ASSERT_TRUE(event);
    EXPECT_EQ(event->keyCode, 16);
    EXPECT_EQ(event->modifierFlags, quint32(NSShiftKeyMask));
    EXPECT_FALSE(keyDownEvent(QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, "a")));
    EXPECT_FALSE(keyDownEvent(QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, 7, 0, 0, "a")));
    EXPECT_FALSE(keyDownEvent(QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, 0xffffffff, 0, 0, "a")));
}

TEST(KeyBindings, commandsHaveTheirSelectors)
{
    EXPECT_EQ(commandSelector(pressOf(36)), "insertNewline:");
    EXPECT_EQ(commandSelector(pressOf(36, NSShiftKeyMask)), "insertNewline:");
    EXPECT_EQ(commandSelector(pressOf(76)), "insertNewline:");
    EXPECT_EQ(commandSelector(pressOf(48)), "insertTab:");
    EXPECT_EQ(commandSelector(pressOf(48, NSShiftKeyMask)), "insertBacktab:");
    EXPECT_EQ(commandSelector(pressOf(126)), "moveUp:");
    EXPECT_EQ(commandSelector(pressOf(53)), "cancelOperation:");
    EXPECT_EQ(commandSelector(pressOf(0)), "");
    EXPECT_EQ(commandSelector(pressOf(122)), "");
}
