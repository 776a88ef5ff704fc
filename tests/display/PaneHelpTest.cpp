// The pane's help buttons: the book's registration, and the place at which the help opens.

#include "CapturedLog.h"
#include "HelpBundle.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "OpenHelp.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "pane/HelpBook.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

#include <QAction>
#include <QDir>
#include <QToolButton>
#include <linux/input-event-codes.h>

namespace {

class PaneHelp : public PaneOnRealStore
{
protected:
    PaneHelp()
    {
        setRegisteredBooks({});
        writeTestBook(bundle(), QStringLiteral("Lumaroo.help"));
    }
    ~PaneHelp() override
    {
        closeHelp();
        setRegisteredBooks({});
    }

    /// Asks for help as a button with this tag does.
    void askWithTag(int tag)
    {
        QAction button;
        button.setProperty("tag", tag);
        pane().displayHelp(&button);
    }
    static QVariantMap book(const QString &name) { return {{QStringLiteral("id"), name}}; }
    QVariantMap ownBook() const { return {{QStringLiteral("id"), ownName}, {QStringLiteral("path"), bundle().path()}}; }
    /// What is registered, with what is not flushed yet.
    static QVariant registered()
    {
        return CFPreferencesCopyAppValue(QStringLiteral("RegisteredBooks"), QStringLiteral("com.apple.help"));
    }
    /// The pane with its view loaded, which registers the book, and then with something else registered.
    void loadPaneAndRegister(const QVariant &books)
    {
        pane();
        setRegisteredBooks(books);
    }

    const QString ownName = QStringLiteral("Lumaroo Help");
};

} // namespace

TEST_F(PaneHelp, isRegisteredWhenTheViewIsLoaded)
{
    paneWithoutView();
    EXPECT_EQ(registeredBooksOnDisk(), QVariantMap());
    pane();
    EXPECT_EQ(registeredBooksOnDisk(), QVariantMap({{KTXLMAppID, QVariantList{ownBook()}}}));
}

TEST_F(PaneHelp, isRegisteredAndOpenedWhereNothingIsRegistered)
{
    loadPaneAndRegister({});
    askWithTag(0);
    EXPECT_TRUE(helpShows("anchors.html#activate"));
    EXPECT_EQ(registeredBooksOnDisk(), QVariantMap({{KTXLMAppID, QVariantList{ownBook()}}}));
}

TEST_F(PaneHelp, isNotRegisteredAgainWhereItsNameIsFirst)
{
    const QVariantMap books{{KTXLMAppID, QVariantList{book(ownName), book("Old Help")}}, {"other", QVariantList()}};
    loadPaneAndRegister(books);
    askWithTag(1);
    EXPECT_TRUE(helpShows("anchors.html#movement"));
    EXPECT_EQ(registeredBooksOnDisk(), books);
}

TEST_F(PaneHelp, takesTheEntryOfAnOldBookAwayAndLeavesOthers)
{
    const QVariantList other{book("Other Help")};
    loadPaneAndRegister(QVariantMap{{KTXLMAppID, QVariantList{book("Old Help")}}, {"com.quorvane.Other", other}});
    askWithTag(2);
    EXPECT_TRUE(helpShows("anchors.html#action"));
    EXPECT_EQ(
        registeredBooksOnDisk(), QVariantMap({{KTXLMAppID, QVariantList{ownBook()}}, {"com.quorvane.Other", other}}));
}

TEST_F(PaneHelp, doesNotCountItsNameInALaterPlace)
{
    loadPaneAndRegister(QVariantMap{{KTXLMAppID, QVariantList{book("Old Help"), book(ownName)}}});
    askWithTag(0);
    EXPECT_EQ(registeredBooksOnDisk(), QVariantMap({{KTXLMAppID, QVariantList{ownBook()}}}));
}

TEST_F(PaneHelp, isRegisteredAfreshWhereItsEntryIsEmptyOrNoEntry)
{
    const QVariant entries[] = {QVariantList(), "text", 7LL, QVariantMap{{"id", ownName}}, QVariantList{ownName},
        QVariantList{QVariantMap()}, QVariantList{QVariantMap{{"id", 7LL}}}, QVariantList{QVariantList{book(ownName)}}};
    for (const QVariant &entry : entries) {
        loadPaneAndRegister(QVariantMap{{KTXLMAppID, entry}});
        askWithTag(0);
        EXPECT_TRUE(helpShows("anchors.html#activate"));
        EXPECT_EQ(registeredBooksOnDisk(), QVariantMap({{KTXLMAppID, QVariantList{ownBook()}}}));
    }
    for (const QVariant &books : {QVariant("text"), QVariant(QVariantList{1LL}), QVariant(true)}) {
        loadPaneAndRegister(books);
        askWithTag(0);
        EXPECT_TRUE(helpShows("anchors.html#activate"));
        EXPECT_EQ(registeredBooksOnDisk(), QVariantMap({{KTXLMAppID, QVariantList{ownBook()}}}));
    }
}

TEST_F(PaneHelp, takesAnOldEntryAwayEvenIfItCannotBeRegistered)
{
    changeInfo({{"CFBundleHelpBookName", QVariant()}});
    const QVariantMap other{{"com.quorvane.Other", QVariantList{book("Other Help")}}};
    QVariantMap books = other;
    books.insert(KTXLMAppID, QVariantList{book("Old Help")});
    loadPaneAndRegister(books);
    askWithTag(0);
    EXPECT_TRUE(helpComesUp());
    EXPECT_TRUE(helpPage()->toPlainText().startsWith("This help is not available"));
    EXPECT_EQ(registered(), QVariant(other));
    EXPECT_EQ(registeredBooksOnDisk(), books) << "the purge alone is not flushed";
}

TEST_F(PaneHelp, opensAtThePlaceOfEachTag)
{
    const QStringList anchors{"activate", "movement", "action", "updates", "ordering", "alerts", "alerts", "alerts",
        "alerts", "alerts", "other", "other", "access"};
    pane();
    for (int index = 0; index < anchors.size(); ++index) {
        askWithTag(index);
        EXPECT_TRUE(helpShows("anchors.html#" + anchors[index])) << index;
    }
}

TEST_F(PaneHelp, ofATagOutsideTheTableIsARangeExceptionAndOpensNothing)
{
    pane();
    for (const int outside : {13, -1, 1000000, INT_MIN}) {
        try {
            askWithTag(outside);
            ADD_FAILURE() << outside;
        } catch (const NSException &exception) {
            EXPECT_EQ(exception.name(), "NSRangeException");
        }
        EXPECT_FALSE(openHelp());
    }
}

TEST_F(PaneHelp, ofAButtonWithSuchATagIsALineInTheLog)
{
    showPane();
    auto *button = control<QToolButton>("generalHelpButton");
    button->defaultAction()->setProperty("tag", 99);
    const CapturedLog log;
    clickOn(button);
    EXPECT_TRUE(waitUntil([&] { return !log.linesContaining("NSRangeException").isEmpty(); }));
    EXPECT_FALSE(openHelp());
}

TEST_F(PaneHelp, opensByTheButtonOfAPageAndByItsKey)
{
    showPane();
    clickOn(control("generalHelpButton"));
    ASSERT_TRUE(helpShows("anchors.html#activate"));
    closeHelp();
    selectTabViewItemAtIndex(control("tabbedView"), 1);
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(pane().mainView()); }));
    pressKey(KEY_F1);
    EXPECT_TRUE(helpShows("anchors.html#movement"));
}

TEST_F(PaneHelp, isNotRegisteredWhereTheBundleIsGone)
{
    pane();
    EXPECT_EQ(RegisterMyHelpBook(), noErr);
    ASSERT_TRUE(QDir().rename(bundle().path(), bundle().path() + ".gone"));
    EXPECT_EQ(RegisterMyHelpBook(), fnfErr);
}
