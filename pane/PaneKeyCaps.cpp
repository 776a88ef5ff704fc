#include "pane/PaneKeyCaps.h"

#include "KTXActionKeys.h"
#include "pane/Controls.h"
#include "platform/appkit/controls/KeyCapField.h"
#include "platform/appkit/controls/Mnemonics.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QLineEdit>

namespace {

QString textOfInterface(const NSBundle *bundle, const QString &text)
{
    return bundle->localizedStringForKeyValueTable(text, text, QStringLiteral("LumarooPref"));
}

/// A modifier's check box says "Control ⌃".
QString nameOf(const QAbstractButton *modifier)
{
    return withoutMnemonic(modifier->text()).section(u' ', 0, -2);
}

QString signOf(const QAbstractButton *modifier)
{
    return modifier->text().section(u' ', -1);
}

} // namespace

PaneKeyCaps::PaneKeyCaps(QWidget *view, const NSBundle *bundle)
    : fields_(KTXActionKeyCount), caps_(KTXActionKeyCount), told_(KTXActionKeyCount),
      hint_(textOfInterface(bundle, QStringLiteral("Click here, then press the new key")))
{
    if (!view)
        return;
    findModifiers(view);
    findFields(view, textOfInterface(bundle, QStringLiteral("Press a key")));
    tellCombinations();
}

void PaneKeyCaps::findModifiers(QWidget *view)
{
    for (const char *name : {"shiftCheckBox", "controlCheckBox", "optionCheckBox", "commandCheckBox"}) {
        auto *modifier = view->findChild<QAbstractButton *>(QString::fromLatin1(name));
        if (!modifier)
            continue;
        modifier->setAccessibleName(nameOf(modifier));
        connect(modifier, &QAbstractButton::toggled, this, &PaneKeyCaps::tellCombinations);
        modifiers_.append(modifier);
    }
}

void PaneKeyCaps::findFields(QWidget *view, const QString &prompt)
{
    const auto fields = view->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        const int row = tag(field);
        if (row < 0 || row >= KTXActionKeyCount)
            continue;
        fields_[row] = field;
        caps_[row] = new KeyCapField(field, prompt);
        connect(field, &QLineEdit::textChanged, this, [this, row] { tellCombination(row); });
    }
}

void PaneKeyCaps::showKey(int row)
{
    if (KeyCapField *cap = caps_.value(row))
        cap->showKey();
}

void PaneKeyCaps::tellCombinations()
{
    for (int row = 0; row < fields_.size(); ++row)
        tellCombination(row);
}

void PaneKeyCaps::tellCombination(int row)
{
    QLineEdit *field = fields_.at(row);
    if (!field)
        return;
    field->setToolTip(modifiers(signOf).join(QString()) + field->text() + u'\n' + hint_);
    told_[row].set(field, combination(row) + u'.');
}

QString PaneKeyCaps::combination(int row) const
{
    const QLineEdit *field = fields_.at(row);
    return field ? (modifiers(nameOf) << field->text()).join(u' ') : QString();
}

/// The name or the sign of each that is chosen.
QStringList PaneKeyCaps::modifiers(QString (*part)(const QAbstractButton *)) const
{
    QStringList chosen;
    for (const auto &modifier : modifiers_) {
        if (modifier && modifier->isChecked())
            chosen += part(modifier);
    }
    return chosen;
}
