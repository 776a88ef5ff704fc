#include "host/ControlSearch.h"

#include "host/FoundMark.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabWidget>
#include <algorithm>

namespace {

constexpr qsizetype longestName = 60;

/// Where the letter follows the text in brackets, as in languages whose own signs no key has, it goes with them.
QString withoutMnemonic(QString text)
{
    static const QString escaped(QChar(0x1));
    static const QRegularExpression inBrackets(QStringLiteral(" ?\\(&[^)]\\)"));
    text.replace(QStringLiteral("&&"), escaped).remove(inBrackets).remove(u'&');
    return text.replace(escaped, QStringLiteral("&")).simplified();
}

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
    const QString all = control.name + u' ' + control.page + u' ' + control.words;
    const QStringList words = search.split(u' ', Qt::SkipEmptyParts);
    return !words.isEmpty() && std::all_of(words.cbegin(), words.cend(), [&all](const QString &word) {
        return all.contains(word, Qt::CaseInsensitive);
    });
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
    if (control->focusPolicy() & Qt::TabFocus)
        control->setFocus(Qt::ShortcutFocusReason);
    else if (QWidget *first = control->nextInFocusChain())
        first->setFocus(Qt::OtherFocusReason);
    new FoundMark(control);
}
