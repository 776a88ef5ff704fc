#include "pane/KeySheet.h"

#include "platform/appkit/controls/KeyCapsLine.h"
#include "platform/appkit/controls/Mnemonics.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>

namespace {

/// The parts of the page of the keys are named after the actions.
const QStringList actions = {QStringLiteral("moveUp"), QStringLiteral("moveDown"), QStringLiteral("moveLeft"),
    QStringLiteral("moveRight"), QStringLiteral("moveUnder"), QStringLiteral("cancelSelection"),
    QStringLiteral("snapToSelection"), QStringLiteral("openPrefPane"), QStringLiteral("takeScreenshot"),
    QStringLiteral("closeWindow"), QStringLiteral("showPreview")};
const QStringList modifiers = {QStringLiteral("shiftCheckBox"), QStringLiteral("controlCheckBox"),
    QStringLiteral("optionCheckBox"), QStringLiteral("commandCheckBox")};
constexpr int movements = 5;

} // namespace

KeySheet::KeySheet(QWidget *view, const NSBundle *bundle, QObject *parent)
    : QObject(parent), view_(view), bundle_(bundle)
{
    const auto *grid = view ? view->findChild<QGridLayout *>(QStringLiteral("keySheetGrid")) : nullptr;
    // A view that is said to be loaded again has its sheet.
    if (!grid || grid->count() > 0)
        return;
    build();
    for (const QString &name : modifiers) {
        if (auto *box = view->findChild<QCheckBox *>(name))
            connect(box, &QCheckBox::toggled, this, &KeySheet::showModifiers);
    }
    show();
    showModifiers();
}

/// Movements on the left, actions on the right.
void KeySheet::build()
{
    auto *grid = view_->findChild<QGridLayout *>(QStringLiteral("keySheetGrid"));
    QWidget *card = grid->parentWidget();
    for (int index = 0; index < actions.size(); ++index) {
        const bool isMovement = index < movements;
        const int row = isMovement ? index : index - movements;
        auto *cap = new KeyCapsLine(card);
        cap->setObjectName(actions.at(index) + QStringLiteral("Cap"));
        auto *label = new StyledLabel(card);
        label->setWordWrap(true);
        label->setText(textOf(actions.at(index) + QStringLiteral("Label")));
        grid->addWidget(cap, row, isMovement ? 0 : 2, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, row, isMovement ? 1 : 3);
        caps_.append(cap);
        if (auto *field = view_->findChild<QLineEdit *>(actions.at(index) + QStringLiteral("Field")))
            connect(field, &QLineEdit::textChanged, this, &KeySheet::show);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
}

void KeySheet::show()
{
    for (int index = 0; index < actions.size(); ++index) {
        const QString key = textOf(actions.at(index) + QStringLiteral("Field"));
        const QString label = textOf(actions.at(index) + QStringLiteral("Label"));
        caps_.at(index)->setSentence(QStringLiteral("%1"), {{key}}, label + QStringLiteral(": ") + key);
    }
}

void KeySheet::showModifiers()
{
    QStringList held;
    QStringList spoken;
    for (const QString &name : modifiers) {
        const auto *box = view_->findChild<QCheckBox *>(name);
        if (!box || !box->isChecked())
            continue;
        held.append(withoutMnemonic(box->text()));
        // The sign comes last, which nobody can say.
        spoken.append(held.last().section(u' ', 0, -2));
    }
    auto *line = view_->findChild<KeyCapsLine *>(QStringLiteral("keySheetModifiers"));
    if (!line)
        return;
    const QString sentence = bundle_->localizedStringForKeyValueTable(
        held.isEmpty() ? QStringLiteral("Press:") : QStringLiteral("Hold %1 and press:"), {}, {});
    line->setSentence(sentence, {held}, held.isEmpty() ? sentence : sentence.arg(spoken.join(u' ')));
}

QString KeySheet::textOf(const QString &control) const
{
    const auto *object = view_ ? view_->findChild<QObject *>(control) : nullptr;
    return object ? withoutMnemonic(object->property("text").toString()) : QString();
}
