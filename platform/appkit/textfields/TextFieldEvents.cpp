#include "platform/appkit/textfields/TextFieldEvents.h"

#include "platform/appkit/NSApplication.h"
#include "platform/appkit/NSBeep.h"
#include "platform/appkit/textfields/NSControlTextEditingDelegate.h"
#include "platform/appkit/textfields/NSWindowDelegate.h"
#include "platform/appkit/textfields/internal/FieldAccessibility.h"
#include "platform/appkit/textfields/internal/KeyBindings.h"
#include "platform/foundation/Boundary.h"

#include <QApplication>
#include <QKeyEvent>
#include <QToolTip>

namespace {

/// While it lives, an event is the application's current one.
class CurrentEvent
{
public:
    explicit CurrentEvent(const NSEvent &event) : outer_(NSApplication::sharedApplication()->currentEvent())
    {
        NSApplication::sharedApplication()->setCurrentEvent(event);
    }
    ~CurrentEvent() { NSApplication::sharedApplication()->setCurrentEvent(outer_); }
    Q_DISABLE_COPY_MOVE(CurrentEvent)

private:
    NSEvent outer_;
};

/// What would put text into a field past the keyboard.
bool bringsText(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonRelease: // the middle button pastes
        return static_cast<const QMouseEvent &>(event).button() == Qt::MiddleButton;
    case QEvent::InputMethod:
        return !static_cast<const QInputMethodEvent &>(event).commitString().isEmpty();
    default:
        return false;
    }
}

/// A field that takes no text has no input method: it would keep keys back, or make others of them.
bool keepsInputMethodAway(QEvent *event)
{
    if (event->type() != QEvent::InputMethodQuery)
        return false;
    auto *query = static_cast<QInputMethodQueryEvent *>(event);
    if (!(query->queries() & Qt::ImEnabled))
        return false;
    query->setValue(Qt::ImEnabled, false);
    query->accept();
    return true;
}

} // namespace

TextFieldEvents::TextFieldEvents(
    const QString &file, NSControlTextEditingDelegate *textDelegate, NSWindowDelegate *windowDelegate, QObject *parent)
    : QObject(parent), file_(file.toUtf8()), textDelegate_(textDelegate), windowDelegate_(windowDelegate)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusMoved(now); });
}

void TextFieldEvents::add(QLineEdit *field)
{
    fields_ += field;
    field->setReadOnly(true);
    field->setAcceptDrops(false);
    field->setContextMenuPolicy(Qt::NoContextMenu);
    letAssistiveToolsOnlyRead(field);
    field->installEventFilter(this);
}

void TextFieldEvents::focusMoved(QWidget *now)
{
    const bool isElsewhere = now && (!edited_ || now->window() == edited_->window() || !edited_->isVisible());
    if (edited_ && edited_ != now && isElsewhere)
        endEditing();
    auto *field = qobject_cast<QLineEdit *>(now);
    if (field && fields_.contains(field))
        beginEditing(field);
}

void TextFieldEvents::beginEditing(QLineEdit *field)
{
    edited_ = field;
    editor_ = FieldEditor::forWindow(field);
    editor_->setDelegate(field);
    FieldEditor *own = askWindowDelegate(field);
    if (!own || own == editor_)
        return;
    editor_->setDelegate(nullptr);
    editor_ = own;
    editor_->setDelegate(field);
}

FieldEditor *TextFieldEvents::editorOf(QLineEdit *field)
{
    return edited_ == field && editor_ ? editor_.get() : FieldEditor::forWindow(field);
}

void TextFieldEvents::endEditing()
{
    QLineEdit *field = edited_;
    edited_ = nullptr;
    field->setReadOnly(true);
    if (editor_ && editor_->delegate() == field)
        editor_->setDelegate(nullptr);
    askWindowDelegate(field);
}

FieldEditor *TextFieldEvents::askWindowDelegate(QLineEdit *field)
{
    FieldEditor *editor = nullptr;
    if (windowDelegate_) {
        runAtBoundary((file_ + ": windowWillReturnFieldEditor:toObject:").constData(),
            [&] { editor = windowDelegate_->windowWillReturnFieldEditorToObject(field->window(), field); });
    }
    return editor;
}

bool TextFieldEvents::eventFilter(QObject *object, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(object); // none any more while it is being destroyed
    if (!field || !field->isReadOnly())
        return false;
    if (event->type() == QEvent::KeyRelease)
        repeats_.noteRelease(*static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::KeyPress)
        return handlePress(field, *static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::ShortcutOverride)
        return handleShortcutOverride(field, *static_cast<QKeyEvent *>(event));
    if (keepsInputMethodAway(event))
        return true;
    return bringsText(*event) && staysUnchanged(field, {});
}

/// Accepted, it comes as a press, and shortcuts rest; else it comes as one where there is no shortcut on it. The text
/// field itself is not asked: it would keep its editing keys.
bool TextFieldEvents::handleShortcutOverride(QLineEdit *field, QKeyEvent &event)
{
    const std::optional<NSEvent> keyDown = keyDownEvent(event);
    if (!keyDown || !isTakenByFields(keyDown->keyCode))
        return false;
    // Of a key that stays down while modifiers change, nothing is to become a shortcut.
    bool isForField = repeats_.isRepeat(event);
    if (!isForField) {
        runAtBoundary((file_ + ": shortcuts").constData(),
            [&] { isForField = textDelegate_->controlComesBeforeShortcuts(field, *keyDown); });
    }
    event.setAccepted(isForField);
    return true;
}

bool TextFieldEvents::handlePress(QLineEdit *field, const QKeyEvent &event)
{
    const bool isRepeated = repeats_.isRepeat(event);
    repeats_.notePress(event);
    const std::optional<NSEvent> keyDown = keyDownEvent(event);
    if (!isRepeated)
        QToolTip::hideText();
    if (!keyDown)
        return false;
    // A key that stays down counts once, also when the focus has moved meanwhile.
    if (isRepeated && countsOnceWhileHeld(keyDown->keyCode))
        return true;
    if (isTypingKey(keyDown->keyCode))
        return staysUnchanged(field, *keyDown);
    const bool isDone = handleCommand(field, *keyDown);
    if (!isDone && !isRepeated && isOfNoUse(keyDown->keyCode))
        tellReasonAgainst(field, *keyDown);
    return isDone;
}

void TextFieldEvents::tellReasonAgainst(QLineEdit *field, const NSEvent &event)
{
    QString reason;
    runAtBoundary(
        (file_ + ": refused key").constData(), [&] { reason = textDelegate_->controlReasonAgainstKey(field, event); });
    if (reason.isEmpty())
        return;
    NSBeep();
    QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), reason, field);
}

bool TextFieldEvents::staysUnchanged(QLineEdit *field, const NSEvent &event)
{
    const CurrentEvent current(event);
    bool mayBegin = false;
    runAtBoundary((file_ + ": control:textShouldBeginEditing:").constData(),
        [&] { mayBegin = textDelegate_->controlTextShouldBeginEditing(field, editorOf(field)); });
    if (mayBegin)
        field->setReadOnly(false);
    return !mayBegin;
}

bool TextFieldEvents::handleCommand(QLineEdit *field, const NSEvent &event)
{
    const QString command = commandSelector(event);
    if (command.isEmpty())
        return false;
    const CurrentEvent current(event);
    bool isDone = false;
    runAtBoundary((file_ + ": control:textView:doCommandBySelector:").constData(),
        [&] { isDone = textDelegate_->controlTextViewDoCommandBySelector(field, editorOf(field), command); });
    // A field of one line has no use for a new line.
    return isDone || command == QLatin1StringView("insertNewline:");
}
