#include "pane/PaneKeys.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "KTXSettings.h"
#include "KeyCodeTranslator.h"
#include "pane/Controls.h"
#include "platform/appkit/controls/AssistiveTools.h"
#include "platform/appkit/controls/Mnemonics.h"
#include "platform/foundation/Boundary.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <numeric>

namespace {

/// Shift and F10 are the Menu key of keyboards that have none.
bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

QPoint placeOfMenu(const QWidget *field, const QContextMenuEvent &event)
{
    return event.reason() == QContextMenuEvent::Mouse ? event.globalPos()
                                                      : field->mapToGlobal(field->rect().bottomLeft());
}

bool isDefault(const QString &key, const QVariant &value)
{
    return isEqualPropertyList(value, KTXDefaultValue(key));
}

} // namespace

PaneKeys::PaneKeys(QWidget *view, const NSBundle *bundle, Pane pane, QObject *parent)
    : QObject(parent), view_(view), bundle_(bundle), pane_(std::move(pane)), caps_(view, bundle)
{
    for (const auto &field : caps_.fields()) {
        if (field)
            field->installEventFilter(this);
    }
    offerUndo(false);
}

bool PaneKeys::eventFilter(QObject *object, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(object);
    if (!field)
        return false;
    if (event->type() == QEvent::ContextMenu) {
        showMenu(field, placeOfMenu(field, *static_cast<QContextMenuEvent *>(event)));
        return true;
    }
    if (event->type() != QEvent::KeyPress || !isMenuKey(*static_cast<QKeyEvent *>(event)))
        return false;
    // The Menu key brings an event of its own for the menu.
    if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_F10)
        showMenu(field, field->mapToGlobal(field->rect().bottomLeft()));
    return true;
}

void PaneKeys::showMenu(QLineEdit *field, QPoint place)
{
    const int row = tag(field);
    auto *menu = new QMenu(field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("keyMenu"));
    QAction *item = menu->addAction(localized("Restore this key"));
    const KeyCodeTable keyCodes = pane_.keyCodes();
    item->setEnabled(keyCodes && keyCodes->at(row) != KTXActionKeys().at(size_t(row)).defaultKeyCode);
    connect(item, &QAction::triggered, this, [this, row] { runAtBoundary("restore", [&] { restore(row); }); });
    menu->popup(place);
    menu->setActiveAction(item);
}

void PaneKeys::tellOfPress(int row, VirtualKeyCode keyCode)
{
    const KeyCodeTable keyCodes = pane_.keyCodes();
    const int other = otherRowWith(keyCode, row);
    const bool isOwn = keyCodes && keyCodes->at(row) == keyCode;
    const bool isRefused = !isOwn && other >= 0;
    tell(isRefused ? usedBy("%1 is used for “%2”.", keyCode, other) : QString(), caps_.fields().at(row));
    if (isRefused)
        return;
    caps_.showKey(row);
    if (!isOwn)
        offerUndo(false);
}

void PaneKeys::tellOfTrial(int row)
{
    const QWidget *line = control("keyUseField");
    if (line && line->isVisible())
        tell(localized("You pressed %1: %2.").arg(caps_.combination(row), actionName(row)));
}

void PaneKeys::restore(int row)
{
    const VirtualKeyCode keyCode = KTXActionKeys().at(size_t(row)).defaultKeyCode;
    if (const int other = otherRowWith(keyCode, row); other >= 0) {
        tell(usedBy("%1 is used for “%2”. Change that key first.", keyCode, other), caps_.fields().at(row));
        return;
    }
    storeDefaults({row});
    caps_.showKey(row);
    tell(localized("The key for “%1” is restored.").arg(actionName(row)), caps_.fields().at(row));
}

void PaneKeys::restoreAll()
{
    QList<int> rows(KTXActionKeyCount);
    std::iota(rows.begin(), rows.end(), 0);
    storeDefaults(rows);
    tell(localized("All keys are restored."));
}

/// What has its first key already is not replaced: the way back from the restoring before stays.
void PaneKeys::storeDefaults(const QList<int> &rows)
{
    QList<Stored> replaced;
    for (const int row : rows) {
        const QString &key = KTXActionKeys().at(size_t(row)).preferenceName;
        if (const QVariant before = CFPreferencesCopyAppValue(key, KTXLMAppID); !isDefault(key, before))
            replaced.append({key, before});
        CFPreferencesSetAppValue(key, KTXDefaultValue(key), KTXLMAppID);
    }
    if (!replaced.isEmpty())
        replaced_ = replaced;
    pane_.showWhatIsStored();
    offerUndo(!replaced_.isEmpty());
}

/// Who has set a key meanwhile keeps it.
void PaneKeys::undo()
{
    for (const auto &[key, value] : std::as_const(replaced_)) {
        if (isDefault(key, CFPreferencesCopyAppValue(key, KTXLMAppID)))
            CFPreferencesSetAppValue(key, value, KTXLMAppID);
    }
    pane_.showWhatIsStored();
    offerUndo(false);
    tell(localized("The keys are as they were before."));
}

/// The keyboard goes back to where the restoring was asked for, before the button with the way back is gone.
void PaneKeys::offerUndo(bool offers)
{
    QWidget *button = control("undoRestoringButton");
    if (!offers) {
        replaced_.clear();
        if (button && button->hasFocus())
            control("restoreAllKeysButton")->setFocus();
    }
    setHidden(button, !offers);
}

/// The field that the line is about tells it, too: what has the keyboard is what a screen reader follows.
void PaneKeys::tell(const QString &text, QWidget *field)
{
    told_.set(toldField_, {});
    toldField_ = field;
    told_.set(field, text);
    QWidget *line = control("keyUseField");
    if (!line || stringValue(line) == text)
        return;
    setStringValue(line, text);
    if (!text.isEmpty())
        alertAssistiveTools(line);
}

int PaneKeys::otherRowWith(VirtualKeyCode keyCode, int row) const
{
    const KeyCodeTable keyCodes = pane_.keyCodes();
    for (int other = 0; keyCodes && other < keyCodes->size(); ++other) {
        if (other != row && keyCodes->at(other) == keyCode)
            return other;
    }
    return -1;
}

QString PaneKeys::usedBy(const char *sentence, VirtualKeyCode keyCode, int row) const
{
    return localized(sentence).arg(KeyCodeTranslator::stringForKeyCodeWithModifierFlags(keyCode, 0), actionName(row));
}

/// As the label beside the row's field has it.
QString PaneKeys::actionName(int row) const
{
    const auto labels = view_ ? view_->findChildren<QLabel *>() : QList<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() && label->buddy() == caps_.fields().at(row))
            return withoutMnemonic(label->text());
    }
    return {};
}

QString PaneKeys::localized(const char *text) const
{
    return bundle_->localizedStringForKeyValueTable(QString::fromUtf8(text), {}, {});
}

QWidget *PaneKeys::control(const char *name) const
{
    return view_ ? view_->findChild<QWidget *>(QString::fromLatin1(name)) : nullptr;
}
