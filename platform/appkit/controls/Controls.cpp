#include "platform/appkit/controls/Controls.h"

#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/appkit/controls/internal/LayoutWhenShown.h"
#include "platform/appkit/richtext/NSAttributedString.h"

#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTextDocument>
#include <QTextEdit>
#include <QVariant>

namespace {

bool hasProperty(const QObject *object, const char *name)
{
    return object && object->metaObject()->indexOfProperty(name) >= 0;
}

QVariant propertyOf(const QObject *object, const char *name)
{
    return hasProperty(object, name) ? object->property(name) : QVariant();
}

void setPropertyOf(QObject *object, const char *name, const QVariant &value)
{
    if (hasProperty(object, name))
        object->setProperty(name, value);
}

void setExclusive(QAbstractButton *button, bool exclusive)
{
    if (QButtonGroup *group = button->group())
        group->setExclusive(exclusive);
    else
        button->setAutoExclusive(exclusive);
}

bool isExclusive(const QAbstractButton *button)
{
    return button->group() ? button->group()->exclusive() : button->autoExclusive();
}

void uncheck(QAbstractButton *button)
{
    // The checked button of an exclusive group cannot be unchecked while the group excludes.
    const bool exclusive = isExclusive(button);
    setExclusive(button, false);
    button->setChecked(false);
    setExclusive(button, exclusive);
}

NSMatrix *matrixOf(const QObject *cell)
{
    for (QObject *ancestor = cell->parent(); ancestor; ancestor = ancestor->parent()) {
        if (auto *matrix = qobject_cast<NSMatrix *>(ancestor))
            return matrix;
    }
    return nullptr;
}

void click(QAbstractButton *button)
{
    if (NSMatrix *matrix = matrixOf(button))
        matrix->adoptCells();
    button->click();
}

} // namespace

int tag(const QObject *control)
{
    // Most objects have no such property, and asking for one searches all that their class declares.
    if (!control || !control->dynamicPropertyNames().contains("tag"))
        return -1;
    const QVariant value = control->property("tag");
    return value.isValid() ? value.toInt() : -1;
}

int state(const QObject *button)
{
    const auto *box = qobject_cast<const QCheckBox *>(button);
    if (box && box->checkState() == Qt::PartiallyChecked)
        return NSMixedState;
    return propertyOf(button, "checked").toBool() ? NSOnState : NSOffState;
}

void setState(QObject *button, int state)
{
    auto *box = qobject_cast<QCheckBox *>(button);
    auto *abstractButton = qobject_cast<QAbstractButton *>(button);
    if (box && box->isTristate() && state == NSMixedState)
        box->setCheckState(Qt::PartiallyChecked);
    else if (abstractButton && state == NSOffState)
        uncheck(abstractButton);
    else
        setPropertyOf(button, "checked", state != NSOffState);
}

QString stringValue(const QObject *control)
{
    return propertyOf(control, hasProperty(control, "text") ? "text" : "plainText").toString();
}

void setStringValue(QObject *control, const QString &text)
{
    // A value is shown as it is, never taken for markup.
    if (auto *label = qobject_cast<QLabel *>(control); label && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
    setPropertyOf(control, hasProperty(control, "text") ? "text" : "plainText", text);
}

float floatValue(const QObject *slider)
{
    return propertyOf(slider, "value").toFloat();
}

void setFloatValue(QObject *slider, float value)
{
    setPropertyOf(slider, "value", double(value));
}

bool isEnabled(const QObject *control)
{
    return propertyOf(control, "enabled").toBool();
}

void setEnabled(QObject *control, bool enabled)
{
    setPropertyOf(control, "enabled", enabled);
}

bool isHidden(const QObject *view)
{
    if (const auto *widget = qobject_cast<const QWidget *>(view))
        return widget->isHidden();
    const auto *action = qobject_cast<const QAction *>(view);
    return action && !action->isVisible();
}

void setHidden(QObject *view, bool hidden)
{
    setPropertyOf(view, "visible", !hidden);
}

NSColorRef color(const QObject *colorWell)
{
    const auto *well = qobject_cast<const NSColorWell *>(colorWell);
    return well ? well->color() : nullptr;
}

void setColor(QObject *colorWell, const NSColorRef &color)
{
    if (auto *well = qobject_cast<NSColorWell *>(colorWell))
        well->setColor(color);
}

void setAttributedString(QObject *textView, const NSAttributedString &text)
{
    auto *edit = qobject_cast<QTextEdit *>(textView);
    if (!edit)
        return;
    // The view deletes a document that it made itself, not one that was set.
    QTextDocument *before = edit->document();
    const bool wasSet = before->parent() == edit;
    QTextDocument *document = text.document().release();
    document->setParent(edit);
    if (!edit->isVisible())
        new LayoutWhenShown(edit, document);
    edit->setDocument(document);
    if (wasSet)
        delete before;
}

void performClick(QObject *control)
{
    if (auto *matrix = qobject_cast<NSMatrix *>(control))
        performClick(matrix->selectedCell());
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        click(button);
    else if (auto *action = qobject_cast<QAction *>(control))
        action->trigger();
    else if (auto *popUp = qobject_cast<QComboBox *>(control); popUp && popUp->isEnabled())
        popUp->showPopup();
}
