// The pane's window without a mouse and without eyes: names, mnemonics, and a place in the tab order for every control.

#include "LoadedWindow.h"
#include "StringTables.h"
#include "Wait.h"
#include "platform/appkit/controls/NSMatrix.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace {

using testing::UnorderedElementsAreArray;

constexpr int pages = 6;

std::string nameOf(const QWidget *widget)
{
    return widget ? widget->objectName().toStdString() : std::string("nothing");
}

QList<QWidget *> controlsOf(const QWidget *page)
{
    QList<QWidget *> controls;
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        const bool isPart = widget->objectName().startsWith(QStringLiteral("qt_"));
        if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus && !isPart)
            controls += widget;
    }
    return controls;
}

/// What Tab stops at: radio buttons share one stop, their group.
std::string tabStopOf(const QWidget *control)
{
    return nameOf(qobject_cast<const QRadioButton *>(control) ? control->parentWidget() : control);
}

QString textWithMnemonic(const QObject *object)
{
    if (const auto *label = qobject_cast<const QLabel *>(object))
        return label->buddy() ? label->text() : QString();
    const auto *button = qobject_cast<const QAbstractButton *>(object);
    return button ? button->text() : QString();
}

QString accessibleText(QWidget *widget, QAccessible::Text text)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(text) : QString();
}

/// Where its text has no letter left in some languages, and it is wanted seldom.
bool isLeftToTab(const QWidget *control)
{
    return control->objectName() == u"restoreAllKeysButton";
}

class TheWindowIn : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override { window.show(); }

    /// A table's texts in the window's language, by their English.
    QMap<QString, QString> textsOf(const QString &part, const QString &table) const
    {
        if (language != u"en")
            return stringTable(part, language, table).texts;
        QMap<QString, QString> texts = stringTable(part, QStringLiteral("de"), table).texts;
        for (auto text = texts.begin(); text != texts.end(); ++text)
            *text = text.key();
        return texts;
    }
    /// The button that the host shows beside the pane.
    QString wayBack() const
    {
        return textsOf(QStringLiteral("host"), QStringLiteral("Settings")).value(QStringLiteral("&All settings"));
    }
    /// Where Tab stops on its way from the tab bar round to it again; the links of a page are one stop, their view.
    std::vector<std::string> tabOrder(QTabWidget *tabbedView)
    {
        std::vector<std::string> order;
        tabbedView->tabBar()->setFocus();
        for (int step = 0; step < 100; ++step) {
            QTest::keyClick(window.root()->focusWidget(), Qt::Key_Tab);
            if (window.root()->focusWidget() == tabbedView->tabBar())
                break;
            const std::string stop = tabStopOf(window.root()->focusWidget());
            if (order.empty() || order.back() != stop)
                order.push_back(stop);
        }
        return order;
    }

    const QString language = QString::fromStdString(GetParam());
    LoadedWindow window{language};
};

TEST_P(TheWindowIn, namesEveryControlForAScreenReader)
{
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        for (QWidget *control : controlsOf(window.page(index)))
            EXPECT_FALSE(accessibleText(control, QAccessible::Name).isEmpty()) << nameOf(control);
    }
}

TEST_P(TheWindowIn, reachesEveryControlByTab)
{
    auto *tabbedView = window.find<QTabWidget>(QStringLiteral("tabbedView"));
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        std::set<std::string> expected;
        for (const QWidget *control : controlsOf(window.page(index)))
            expected.insert(tabStopOf(control));
        EXPECT_FALSE(expected.empty());
        EXPECT_THAT(tabOrder(tabbedView), UnorderedElementsAreArray(expected)) << index;
    }
}

TEST_P(TheWindowIn, goesDownAPageByTab)
{
    constexpr int rowHeight = 20;
    auto *tabbedView = window.find<QTabWidget>(QStringLiteral("tabbedView"));
    for (const int index : {0, 2, 3, 4, 5}) {
        window.showPage(index);
        int lowest = 0;
        for (const std::string &stop : tabOrder(tabbedView)) {
            const auto *control = window.find(QString::fromStdString(stop));
            const QWidget *column = qobject_cast<const QScrollArea *>(window.page(index))->widget();
            const int middle = control->mapTo(column, control->rect().center()).y();
            EXPECT_GT(middle, lowest - rowHeight) << stop;
            lowest = std::max(lowest, middle);
        }
    }
}

TEST_P(TheWindowIn, givesEveryControlAMnemonicOfItsOwn)
{
    const auto *tabbedView = window.find<QTabWidget>(QStringLiteral("tabbedView"));
    for (int index = 0; index < pages; ++index) {
        QMap<QString, QString> texts;
        const auto add = [&texts](const QString &text) {
            const QString mnemonic = QKeySequence::mnemonic(text).toString();
            if (mnemonic.isEmpty())
                return;
            EXPECT_FALSE(texts.contains(mnemonic)) << qPrintable(text) << " and " << qPrintable(texts.value(mnemonic));
            texts[mnemonic] = text;
        };
        add(wayBack());
        for (int tab = 0; tab < pages; ++tab) {
            EXPECT_FALSE(QKeySequence::mnemonic(tabbedView->tabText(tab)).isEmpty());
            add(tabbedView->tabText(tab));
        }
        for (const QWidget *widget : window.page(index)->findChildren<QWidget *>())
            add(textWithMnemonic(widget));
    }
}

TEST_P(TheWindowIn, keepsTheMnemonicsApartWhateverTheStateLineSays)
{
    const auto *tabbedView = window.find<QTabWidget>(QStringLiteral("tabbedView"));
    QStringList others{QKeySequence::mnemonic(wayBack()).toString()};
    for (int tab = 0; tab < pages; ++tab)
        others += QKeySequence::mnemonic(tabbedView->tabText(tab)).toString();
    for (const QWidget *widget : window.page(0)->findChildren<QWidget *>()) {
        if (widget->objectName() != u"stateHint")
            others += QKeySequence::mnemonic(textWithMnemonic(widget)).toString();
    }
    const QStringList lines = textsOf(QStringLiteral("pane"), QStringLiteral("Localizable")).values();
    for (const QString &line : lines.filter(QStringLiteral("&")))
        EXPECT_FALSE(others.contains(QKeySequence::mnemonic(line).toString())) << qPrintable(line);
}

TEST_P(TheWindowIn, reachesEveryControlByAMnemonic)
{
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        QSet<const QWidget *> reached;
        for (const QWidget *widget : window.page(index)->findChildren<QWidget *>()) {
            if (QKeySequence::mnemonic(textWithMnemonic(widget)).isEmpty())
                continue;
            const auto *label = qobject_cast<const QLabel *>(widget);
            reached += label ? label->buddy() : widget;
        }
        for (const QWidget *control : controlsOf(window.page(index))) {
            const bool isReadingOrHelp =
                qobject_cast<const QTextBrowser *>(control) || qobject_cast<const QToolButton *>(control);
            EXPECT_TRUE(isReadingOrHelp || isLeftToTab(control) || reached.contains(control)) << nameOf(control);
        }
    }
}

TEST_P(TheWindowIn, tellsAScreenReaderWhatToDoInAKey)
{
    for (auto *field : window.page(1)->findChildren<QLineEdit *>())
        EXPECT_FALSE(accessibleText(field, QAccessible::Description).isEmpty()) << nameOf(field);
}

TEST_P(TheWindowIn, goesThroughTheMovementKeysFromLeftToRight)
{
    window.showPage(1);
    window.find(QStringLiteral("moveUpField"))->setFocus();
    for (const char *next : {"moveLeftField", "moveUnderField", "moveRightField", "moveDownField"}) {
        QTest::keyClick(window.root()->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(nameOf(window.root()->focusWidget()), next);
    }
}

TEST_P(TheWindowIn, opensThePagesHelpWithF1)
{
    const int topics[pages] = {0, 1, 4, 3, 12, 10};
    for (int index = 0; index < pages; ++index) {
        window.showPage(index);
        window.forgetPerformedActions();
        QTest::keyClick(window.root(), Qt::Key_F1);
        ASSERT_EQ(window.performedActions().size(), 1) << index;
        EXPECT_EQ(window.performedActions().first().selector, QStringLiteral("displayHelp:"));
        EXPECT_EQ(window.performedActions().first().sender->property("tag").toInt(), topics[index]);
    }
}

INSTANTIATE_TEST_SUITE_P(Language, TheWindowIn, testing::ValuesIn(languagesOfTheProgram()));

} // namespace
