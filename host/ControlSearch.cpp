#include "host/ControlSearch.h"

#include "host/FoundMark.h"
#include "platform/appkit/controls/Mnemonics.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <algorithm>

namespace {

constexpr qsizetype longestName = 60;

/// What the window itself writes on a control; a label speaks for its buddy.
SearchedControl namedControl(QWidget *widget)
{
    if (const auto *label = qobject_cast<QLabel *>(widget)) {
        QWidget *buddy = label->buddy();
        return {buddy ? withoutMnemonic(label->text()) : label->text(), {}, {}, buddy ? buddy : widget};
    }
    if (const auto *button = qobject_cast<QAbstractButton *>(widget); button && button->text().size() > 1)
        return {withoutMnemonic(button->text()), {}, {}, widget};
    return {widget->accessibleName(), {}, {}, widget};
}

bool isPartOfControl(const QWidget *widget)
{
    return widget->objectName().startsWith(QStringLiteral("qt_")) || qobject_cast<QComboBox *>(widget->parentWidget());
}

void addControlsOf(const QWidget *page, const QString &pageName, QList<SearchedControl> &found)
{
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isPartOfControl(widget) || !widget->isVisibleTo(page))
            continue;
        SearchedControl one = namedControl(widget);
        if (one.name.isEmpty() || one.name.size() > longestName)
            continue;
        one.page = pageName;
        one.words = one.control->property("searchWords").toString();
        found.append(one);
    }
}

/// What counts of a text in a search: neither case nor accents, nor which apostrophe it is.
QString comparable(const QString &text)
{
    QString letters;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (character == u'’')
            letters += u'\'';
        else if (character == u'ł')
            letters += u'l';
        else if (character.category() != QChar::Mark_NonSpacing)
            letters += character;
    }
    return letters.simplified();
}

QTabWidget *tabsAround(const QWidget *control, int *index)
{
    for (QWidget *around = control->parentWidget(); around; around = around->parentWidget()) {
        auto *tabs = qobject_cast<QTabWidget *>(around);
        for (int page = 0; tabs && page < tabs->count(); ++page) {
            *index = page;
            if (tabs->widget(page) == control || tabs->widget(page)->isAncestorOf(control))
                return tabs;
        }
    }
    return nullptr;
}

bool takesTab(const QWidget *widget)
{
    return widget->focusPolicy() & Qt::TabFocus && widget->isVisible() && widget->isEnabled();
}

/// The control, or what takes the keyboard first in it or after it beside it; null where nothing does.
QWidget *firstFocus(QWidget *control)
{
    if (takesTab(control))
        return control;
    bool isAfter = false;
    for (const QWidget *around : {control, control->parentWidget()}) {
        const auto widgets = around ? around->findChildren<QWidget *>() : QList<QWidget *>();
        for (QWidget *widget : widgets) {
            isAfter = isAfter || around == control || widget == control;
            if (isAfter && takesTab(widget))
                return widget;
        }
    }
    return nullptr;
}

} // namespace

QList<SearchedControl> searchedControls(const QWidget *view)
{
    QList<SearchedControl> found;
    const auto *tabs = view->findChild<QTabWidget *>();
    if (!tabs) {
        addControlsOf(view, {}, found);
        return found;
    }
    for (int index = 0; index < tabs->count(); ++index) {
        const QString name = withoutMnemonic(tabs->tabText(index));
        found.append({name, name, {}, tabs->widget(index)});
        addControlsOf(tabs->widget(index), name, found);
    }
    return found;
}

bool controlMatches(const SearchedControl &control, const QString &search)
{
    const QString all = comparable(control.name + u' ' + control.page + u' ' + control.words);
    const QStringList words = comparable(search).split(u' ', Qt::SkipEmptyParts);
    return !words.isEmpty()
        && std::all_of(words.cbegin(), words.cend(), [&all](const QString &word) { return all.contains(word); });
}

void showControl(QWidget *control)
{
    int index = 0;
    if (QTabWidget *tabs = tabsAround(control, &index))
        tabs->setCurrentIndex(index);
    for (QWidget *around = control->parentWidget(); around; around = around->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(around); area && area->widget())
            area->ensureWidgetVisible(control);
    }
    if (QWidget *first = firstFocus(control))
        first->setFocus(Qt::ShortcutFocusReason);
    new FoundMark(control);
}
