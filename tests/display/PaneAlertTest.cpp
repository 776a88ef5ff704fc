// The pane's warnings: sheets that can be suppressed.

#include "HelpBundle.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "OpenHelp.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/alerts/NSAlert.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QPushButton>
#include <linux/input-event-codes.h>

namespace {

class PaneAlert : public PaneOnRealStore
{
protected:
    void SetUp() override
    {
        showPane();
        rememberStore();
    }
    void rememberStore()
    {
        before_ = store().domain();
        bus().clear();
    }
    /// The whole domain is as it was but for these keys.
    void expectStored(const QVariantMap &changes)
    {
        QVariantMap expected = before_;
        expected.insert(changes);
        EXPECT_TRUE(isEqualPropertyList(store().domain(), expected));
    }
    void display(const QString &suppressionKey, const QString &helpAnchor = {})
    {
        pane().displayAlertwitheMessageAndInformationSuppressionPrefValueAndHelpAnchor(
            QStringLiteral("The message"), QStringLiteral("The information"), suppressionKey, helpAnchor);
    }
    void close()
    {
        pressKey(KEY_ENTER);
        EXPECT_TRUE(alertGoesBackTo(window()));
    }
    QWidget *window() { return pane().mainView()->window(); }
    bool isNothingShown() { return noAlertComesUpOn(window()); }

private:
    QVariantMap before_;
};

const QStringList suppressionKeys{KTXSuppressHKeyTaken, KTXsuppressHKeysTaken, KTXSuppressModAlert};

} // namespace

TEST_F(PaneAlert, comesUpAsASheetWhenTheCallHasReturned)
{
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(openAlert()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(openAlert()->parentWidget(), window());
    EXPECT_EQ(textsOfAlert(), (QStringList{"The message", "The information"}));
    EXPECT_TRUE(partOfAlert("suppression"));
    EXPECT_FALSE(partOfAlert("help"));
    EXPECT_EQ(openAlert()->findChildren<QPushButton *>().size(), 1);
    close();
}

TEST_F(PaneAlert, isNotShownWhenItsKeyIsTrue)
{
    for (const QString &key : suppressionKeys) {
        store().set(key, true);
        display(key);
        EXPECT_TRUE(isNothingShown()) << key.toStdString();
    }
}

TEST_F(PaneAlert, isShownWhenItsKeyIsFalseOrNoBoolean)
{
    for (const QVariant &value : {QVariant(false), QVariant(qlonglong(1)), QVariant(QStringLiteral("true")),
             QVariant(QVariantList{true}), QVariant(1.0)}) {
        store().set(KTXSuppressModAlert, value);
        rememberStore();
        display(KTXSuppressModAlert);
        ASSERT_TRUE(alertComesUp()) << value.typeName();
        close();
        expectStored({});
    }
}

TEST_F(PaneAlert, isShownWhenOnlyAnotherKeyIsTrue)
{
    store().set(KTXSuppressHKeyTaken, true);
    display(KTXsuppressHKeysTaken);
    EXPECT_TRUE(alertComesUp());
    close();
}

TEST_F(PaneAlert, tickedStoresTrueUnderItsKeyAndTellsTheAgentOnce)
{
    for (const QString &key : suppressionKeys) {
        rememberStore();
        display(key);
        ASSERT_TRUE(alertComesUp());
        tickAlert();
        expectStored({});
        close();
        expectStored({{key, true}});
        EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
        display(key);
        EXPECT_TRUE(isNothingShown());
    }
}

TEST_F(PaneAlert, tickedReplacesAValueOfTheWrongKind)
{
    store().set(KTXSuppressModAlert, 1);
    rememberStore();
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    tickAlert();
    close();
    expectStored({{KTXSuppressModAlert, true}});
}

TEST_F(PaneAlert, closedWithoutATickStoresNothing)
{
    for (const int key : {KEY_ENTER, KEY_ESC}) {
        display(KTXSuppressModAlert);
        ASSERT_TRUE(alertComesUp());
        pressKey(key);
        ASSERT_TRUE(alertGoesBackTo(window()));
        expectStored({});
        EXPECT_TRUE(bus().names().isEmpty());
    }
}

TEST_F(PaneAlert, tickedAndUntickedStoresNothing)
{
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    for (const bool isTicked : {true, false}) {
        clickOn(partOfAlert("suppression"));
        ASSERT_TRUE(waitUntil([isTicked] { return partOfAlert<QCheckBox>("suppression")->isChecked() == isTicked; }));
    }
    close();
    expectStored({});
    EXPECT_TRUE(bus().names().isEmpty());
}

TEST_F(PaneAlert, withoutAKeyHasNoBoxAndStoresNothing)
{
    display({});
    ASSERT_TRUE(alertComesUp());
    EXPECT_FALSE(partOfAlert("suppression"));
    close();
    expectStored({});
    EXPECT_TRUE(bus().names().isEmpty());
}

TEST_F(PaneAlert, withAHelpAnchorOpensThePanesHelpThere)
{
    writeTestBook(bundle(), QStringLiteral("Lumaroo.help"));
    display(KTXSuppressModAlert, QStringLiteral("alerts"));
    ASSERT_TRUE(alertComesUp());
    clickOn(partOfAlert("help"));
    EXPECT_TRUE(helpShows("anchors.html#alerts"));
    closeHelp();
    ASSERT_TRUE(alertComesUp());
    close();
}

TEST_F(PaneAlert, showsThePanesOwnIcon)
{
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    const auto *icon = partOfAlert<QLabel>("icon");
    ASSERT_TRUE(icon);
    const QImage shown = icon->pixmap().toImage();
    const QImage own(bundle().resourcePath() + QStringLiteral("/Lumaroo.icns"));
    ASSERT_FALSE(own.isNull());
    ASSERT_FALSE(shown.isNull());
    const auto coarse = [](const QImage &image) {
        return image.convertToFormat(QImage::Format_ARGB32)
            .scaled(4, 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    for (int place = 0; place < 16; ++place) {
        const QColor is = coarse(shown).pixelColor(place % 4, place / 4);
        const QColor expected = coarse(own).pixelColor(place % 4, place / 4);
        EXPECT_NEAR(is.lightness(), expected.lightness(), 24) << place;
        EXPECT_NEAR(is.alpha(), expected.alpha(), 24) << place;
        EXPECT_NEAR(is.blue() - is.red(), expected.blue() - expected.red(), 24) << place;
    }
    close();
}

TEST_F(PaneAlert, withoutItsIconIsShownWithoutOneAndWithoutComplaint)
{
    QFile::remove(bundle().resourcePath() + QStringLiteral("/Lumaroo.icns"));
    CapturedLog log;
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    EXPECT_FALSE(partOfAlert("icon"));
    EXPECT_EQ(log.lines(), QStringList());
    close();
}

TEST_F(PaneAlert, whileOneIsShownIsShownAfterIt)
{
    display(KTXSuppressModAlert);
    display(KTXsuppressHKeysTaken);
    ASSERT_TRUE(alertComesUp());
    tickAlert();
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([&] { return store().domain().contains(KTXSuppressModAlert); }));
    ASSERT_TRUE(alertComesUp());
    close();
    expectStored({{KTXSuppressModAlert, true}});
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefsChanged});
}

TEST_F(PaneAlert, survivesThatThePaneIsLeftAndShownAgain)
{
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    ASSERT_EQ(pane().shouldUnselect(), NSUnselectNow);
    pane().willUnselect();
    pane().mainView()->hide();
    pane().didUnselect();
    EXPECT_FALSE(openAlert());
    pane().willSelect();
    pane().mainView()->show();
    pane().didSelect();
    ASSERT_TRUE(alertComesUp());
    rememberStore();
    tickAlert();
    close();
    expectStored({{KTXSuppressModAlert, true}});
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefsChanged});
}

TEST_F(PaneAlert, askedForWhileTheWindowIsHiddenComesUpWithIt)
{
    window()->hide();
    display(KTXSuppressModAlert);
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    window()->show();
    EXPECT_TRUE(alertComesUp());
    close();
}

TEST_F(PaneAlert, goesWithThePane)
{
    display(KTXSuppressModAlert);
    display(KTXsuppressHKeysTaken);
    ASSERT_TRUE(alertComesUp());
    destroyPane();
    runPendingEvents();
    EXPECT_FALSE(openAlert());
    expectStored({});
    EXPECT_TRUE(bus().names().isEmpty());
}

TEST_F(PaneAlert, goesWithThePaneFromTheWindowOfTheHost)
{
    QWidget host;
    auto *layout = new QVBoxLayout(&host);
    layout->addWidget(pane().mainView());
    host.show();
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(&host); }));
    display(KTXSuppressModAlert);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(openAlert()->parentWidget(), &host);
    destroyPane();
    EXPECT_FALSE(openAlert());
    EXPECT_TRUE(waitUntil([&] { return hasKeyboard(&host); }));
    expectStored({});
}

TEST_F(PaneAlert, endsWithoutAPreferenceWhenItsBoxIsOff)
{
    NSAlert alert;
    pane().alertDidEndReturnCodeContextInfo(&alert, NSAlertFirstButtonReturn, KTXSuppressModAlert);
    expectStored({});
    alert.setSuppressionButtonState(NSOnState);
    pane().alertDidEndReturnCodeContextInfo(&alert, NSAlertFirstButtonReturn, KTXSuppressModAlert);
    expectStored({{KTXSuppressModAlert, true}});
}
