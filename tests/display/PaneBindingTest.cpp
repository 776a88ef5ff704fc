// The options of the behaviour page show what is stored, whoever stored it and when.

#include "DefaultsProgram.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QTest>

namespace {

constexpr int behaviourPage = 2;
enum class Order { IsNot, Is, IsNotSelectedOnReading };

/// A value that an option can have, and what then shows: the state of a check box, the tag of an item or cell.
struct Option
{
    QString key;
    QVariant value;
    const char *control;
    int shown;
    Order order = Order::IsNot;
};

QList<Option> options()
{
    const auto horizontal = "HorizontalPopup";
    const auto vertical = "VerticalPopup";
    QList<Option> all{{KTXHSort, "RightEdge", horizontal, 52, Order::Is},
        {KTXHSort, "LeftEdge", horizontal, 53, Order::Is},
        {KTXHSort, "LeadingEdge", horizontal, 58, Order::IsNotSelectedOnReading},
        {KTXHSort, "Center", horizontal, 60, Order::IsNotSelectedOnReading},
        {KTXHSort, "FirstSelected", horizontal, 54, Order::Is}, {KTXVSort, "TopEdge", vertical, 55, Order::Is},
        {KTXVSort, "BottomEdge", vertical, 56, Order::Is},
        {KTXVSort, "LeadingEdge", vertical, 59, Order::IsNotSelectedOnReading},
        {KTXVSort, "Center", vertical, 61, Order::IsNotSelectedOnReading},
        {KTXVSort, "FirstSelected", vertical, 57, Order::Is}, {KTXCycleAscending, true, "cycleOrderPopup", 50},
        {KTXCycleAscending, false, "cycleOrderPopup", 51}, {KTXPersistentDoubleClick, true, "persistentModeMatrix", 74},
        {KTXPersistentDoubleClick, false, "persistentModeMatrix", 75}};
    const QList<std::pair<QString, const char *>> checkBoxes{{KTXActivateDoubleClick, "doubleClickActivateCheckBox"},
        {KTXAnimate, "animateButton"}, {KTXAutoRepeat, "keyRepeatButton"}, {KTXHWrap, "enableHorizontalWrapButton"},
        {KTXVWrap, "enableVerticalWrapButton"}};
    for (const auto &[key, control] : checkBoxes) {
        all += {key, true, control, NSOnState};
        all += {key, false, control, NSOffState};
    }
    return all;
}

class PaneBinding : public PaneOnRealStore
{
protected:
    PaneBinding() { store().set(KTXFirstLaunch, QVariant(true)); }

    void showPage()
    {
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), behaviourPage);
        runPendingEvents();
    }

    /// What then shows is the pane's doing.
    void removeBindings() const
    {
        const QString name = QStringLiteral("Contents/Resources/LumarooPref.ui");
        QFile file(bundle().path() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        bundle().writeFile(name, file.readAll().replace("=\"binding\"", "=\"unbound\""));
    }

    void leaveAndComeBack()
    {
        pane().willUnselect();
        pane().didUnselect();
        pane().willSelect();
        pane().didSelect();
        runPendingEvents();
    }

    /// What is shown needs no window on screen.
    void reopen()
    {
        destroyPane();
        pane().willSelect();
        pane().didSelect();
        runPendingEvents();
    }

    int shown(const char *name)
    {
        QWidget *view = control(name);
        if (isPopUp(view))
            return selectedItemTag(view);
        const auto *matrix = qobject_cast<NSMatrix *>(view);
        return matrix ? tag(matrix->selectedCell()) : state(view);
    }

    /// Everything that shows, to see that it stays.
    QList<int> page()
    {
        QList<int> states;
        for (const Option &option : options())
            states += shown(option.control);
        return states << isEnabled(control("persistentWithoutDoubleClickCell"));
    }

    /// As its user does it, with the mouse or, in a pop-up, by keyboard.
    void choose(const Option &option)
    {
        QWidget *view = control(option.control);
        if (isPopUp(view))
            chooseItem(qobject_cast<QComboBox *>(view), option.shown);
        else if (const auto *matrix = qobject_cast<NSMatrix *>(view))
            click(matrix->cellWithTag(option.shown));
        else if (state(view) != option.shown)
            click(view);
    }

    /// As another process would.
    static void putFile(const QVariantMap &domain)
    {
        QFile file(StoreOnDisk::path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(writeBinaryPropertyList(domain));
    }

    static void storeByCommand(const Option &option)
    {
        const bool isBoolean = option.value.typeId() == QMetaType::Bool;
        EXPECT_EQ(
            runDefaults({"--notify", "write", option.key, isBoolean ? "-bool" : "-string", option.value.toString()})
                .status,
            0);
    }

private:
    static void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2}); }

    static void chooseItem(QComboBox *popUp, int itemTag)
    {
        const int wanted = popUp->findData(itemTag);
        QTest::keyClick(popUp, Qt::Key_Home);
        for (int index = 0; index < wanted; ++index)
            QTest::keyClick(popUp, Qt::Key_Down);
    }
};

} // namespace

TEST_F(PaneBinding, showsWhatWasStoredBeforeOpening)
{
    for (const Option &option : options()) {
        store().set(option.key, option.value);
        reopen();
        EXPECT_EQ(shown(option.control), option.shown) << qPrintable(option.key);
        leaveAndComeBack();
        EXPECT_EQ(shown(option.control), option.shown) << qPrintable(option.key);
    }
}

TEST_F(PaneBinding, showsWhatItsUserHasChosenAlsoAfterLeavingAndComingBack)
{
    showPage();
    for (const Option &option : options()) {
        if (option.key == KTXPersistentDoubleClick)
            store().set(KTXActivateDoubleClick, QVariant(false)); // a cell that is free to choose
        choose(option);
        EXPECT_EQ(store().value(option.key), option.value) << qPrintable(option.key);
        const QList<int> before = page();
        leaveAndComeBack();
        EXPECT_EQ(shown(option.control), option.shown) << qPrintable(option.key);
        EXPECT_EQ(page(), before) << qPrintable(option.key);
    }
    const QList<int> before = page();
    reopen();
    EXPECT_EQ(page(), before);
}

TEST_F(PaneBinding, showsWhatIsStoredByCommandWhileItIsOpen)
{
    showPage();
    for (const Option &option : options()) {
        if (option.order == Order::IsNotSelectedOnReading)
            continue;
        storeByCommand(option);
        EXPECT_TRUE(waitUntil([&] { return shown(option.control) == option.shown; })) << qPrintable(option.key);
        leaveAndComeBack();
        EXPECT_EQ(shown(option.control), option.shown) << qPrintable(option.key);
    }
}

TEST_F(PaneBinding, showsTheOrdersThatAreNotReadWhenItIsOpenedNext)
{
    showPage();
    for (const Option &option : options()) {
        if (option.order != Order::IsNotSelectedOnReading)
            continue;
        const int before = shown(option.control);
        calls.clear();
        storeByCommand(option);
        ASSERT_TRUE(waitUntil([this] { return calls.contains(QStringLiteral("updatePreferences:")); }));
        EXPECT_EQ(shown(option.control), before) << "reading leaves the pop-up as it is";
        reopen();
        EXPECT_EQ(shown(option.control), option.shown) << qPrintable(option.key);
    }
}

TEST_F(PaneBinding, showsWithoutAnAnnouncementWhatIsFoundOnComingBack)
{
    showPage();
    for (const Option &option : options()) {
        if (option.order == Order::IsNotSelectedOnReading)
            continue;
        QVariantMap domain = store().domain();
        domain.insert(option.key, option.value);
        putFile(domain);
        leaveAndComeBack();
        EXPECT_EQ(shown(option.control), option.shown) << qPrintable(option.key);
    }
}

TEST_F(PaneBinding, theOtherCellIsFreeOnlyWithoutActivationByDoubleClick)
{
    store().set({{KTXFirstLaunch, true}, {KTXActivateDoubleClick, true}});
    showPage();
    QWidget *other = control("persistentWithoutDoubleClickCell");
    EXPECT_FALSE(isEnabled(other));
    EXPECT_TRUE(isEnabled(control("persistentByDoubleClickCell")));
    storeByCommand({KTXActivateDoubleClick, false, nullptr, 0});
    EXPECT_TRUE(waitUntil([&] { return isEnabled(other); }));
    storeByCommand({KTXActivateDoubleClick, true, nullptr, 0});
    EXPECT_TRUE(waitUntil([&] { return !isEnabled(other); }));
}

TEST_F(PaneBinding, writesNothingAndAnnouncesNothing)
{
    showPage();
    for (const Option &option : options()) {
        QVariantMap domain = store().domain();
        domain.insert(option.key, option.value);
        store().set(domain);
        bus().clear();
        runPendingEvents();
        EXPECT_EQ(bus().names(), QStringList());
        EXPECT_TRUE(isEqualPropertyList(store().domain(), domain)) << qPrintable(option.key);
    }
}

TEST_F(PaneBinding, isTheWindowFilesAndThePaneItselfSetsNoneOfTheseOptions)
{
    removeBindings();
    store().set({{KTXFirstLaunch, true}, {KTXActivateDoubleClick, true}, {KTXPersistentDoubleClick, false},
        {KTXCycleAscending, true}});
    showPage();
    EXPECT_EQ(shown("doubleClickActivateCheckBox"), NSOffState);
    EXPECT_EQ(shown("persistentModeMatrix"), 74);
    EXPECT_EQ(shown("cycleOrderPopup"), 51);
}
