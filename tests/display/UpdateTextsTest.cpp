// The window's texts: each kind of problem has its own words, in every language, and every page has its keys.

#include "StringTables.h"
#include "TestBundle.h"
#include "Wait.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "updater/UpdateTroubles.h"
#include "updater/windows/UpdatePages.h"
#include "updater/windows/UpdateWindow.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSet>
#include <gtest/gtest.h>

namespace {

const QString product = qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane";

/// A bundle finds out about the user's language once, so that each language needs a bundle of its own.
const NSBundle *bundleIn(const QString &language)
{
    static std::map<QString, TestBundle> bundles;
    TestBundle &bundle = bundles.try_emplace(language, language + ".prefPane").first->second;
    const QString inside = "/Contents/Resources/" + language + ".lproj/Updates.qm";
    QFile table(product + inside);
    EXPECT_TRUE(table.open(QIODevice::ReadOnly)) << qPrintable(table.fileName());
    bundle.writeFile(inside.mid(1), table.readAll());
    return NSBundle::bundleWithPath(bundle.path());
}
/// A bundle without tables speaks English.
const NSBundle *english()
{
    static const TestBundle untranslated("Untranslated.prefPane");
    return NSBundle::bundleWithPath(untranslated.path());
}

QList<UpdateProblem> problems()
{
    QList<UpdateProblem> all;
    for (int kind = int(UpdateProblem::Kind::Feed); kind <= int(UpdateProblem::Kind::Exchange); ++kind)
        all += UpdateProblem{UpdateProblem::Kind(kind), {}};
    return all;
}

QList<UpdatePage> allPages(const NSBundle *bundle)
{
    const UpdatePages pages(bundle);
    AppcastItem item;
    item.displayVersion = item.version = "101";
    item.link = QUrl("http://127.0.0.1/");
    AppcastItem critical = item;
    critical.isCritical = true;
    AppcastItem informational = item;
    informational.isInformational = true;
    AppcastItem withoutPage = informational;
    withoutPage.link.clear();
    AppcastItem withNotes = critical;
    withNotes.description = "<p>New</p>";
    QList<UpdatePage> all{pages.checking(), pages.upToDate("1.0"), pages.offer(item, "100"),
        pages.offer(critical, "100"), pages.offer(informational, "100"), pages.offer(withoutPage, "100"),
        pages.offer(withNotes, "100"), pages.download("1.1"), pages.preparing("1.1"), pages.ready("1.1"),
        pages.installedAtEnd("1.1"), pages.installed("1.1")};
    for (const UpdateProblem &problem : problems())
        all += pages.failure(problem);
    return all;
}

QStringList textsOf(const UpdatePage &page)
{
    QStringList texts{page.heading, page.text};
    for (const UpdateButton &button : page.buttons)
        texts += button.text;
    texts.removeAll({});
    return texts;
}

bool everythingFits(const UpdateWindow &window)
{
    const auto labels = window.findChildren<QLabel *>();
    const auto buttons = window.findChildren<QPushButton *>();
    return std::all_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->height() >= label->heightForWidth(label->width());
    }) && std::all_of(buttons.begin(), buttons.end(), [](const QPushButton *button) {
        return button->width() >= button->sizeHint().width();
    });
}

class UpdateTexts : public testing::TestWithParam<std::string>
{
protected:
    UpdateTexts() { QLocale::setDefault(QLocale(language)); }
    ~UpdateTexts() override { QLocale::setDefault(QLocale::system()); }

    const NSBundle *bundle() const { return language == "en" ? english() : bundleIn(language); }
    void expectToFit() const
    {
        UpdateWindow window("Update", iconOfProduct());
        for (const UpdatePage &page : allPages(bundle())) {
            window.setPage(page);
            window.comeToFront();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
            EXPECT_LE(window.width(), 720) << page.heading.toStdString();
            // The window manager may grant the size before this one first.
            EXPECT_TRUE(waitUntil([&] { return everythingFits(window); })) << page.heading.toStdString();
        }
    }
    static QIcon iconOfProduct() { return QIcon(product + "/Contents/Resources/Lumaroo.icns"); }

    const QString language = QString::fromStdString(GetParam());
};
INSTANTIATE_TEST_SUITE_P(Language, UpdateTexts, testing::ValuesIn(languagesOfTheProgram()));

class TranslatedUpdateTexts : public UpdateTexts
{
};
INSTANTIATE_TEST_SUITE_P(Language, TranslatedUpdateTexts, testing::ValuesIn(translations()));

} // namespace

TEST_P(UpdateTexts, haveWordsOfTheirOwnForEachProblem)
{
    QSet<QString> headings;
    for (const UpdateProblem &problem : problems())
        headings += UpdatePages(bundle()).failure(problem).heading;
    EXPECT_EQ(headings.size(), problems().size());
    EXPECT_FALSE(headings.contains(UpdatePages(bundle()).failure({}).heading));
}

TEST_P(TranslatedUpdateTexts, areAllInTheUsersLanguage)
{
    const QList<UpdatePage> before = allPages(english());
    const QList<UpdatePage> after = allPages(bundle());
    for (qsizetype i = 0; i < before.size(); ++i) {
        const QStringList texts = textsOf(before[i]);
        ASSERT_EQ(texts.size(), textsOf(after[i]).size());
        for (const QString &text : texts)
            EXPECT_FALSE(textsOf(after[i]).contains(text)) << text.toStdString();
    }
    EXPECT_NE(UpdatePages(bundle()).progressText(1'200'000, 3'400'000), "1.2 MB of 3.4 MB");
    EXPECT_NE(UpdatePages(bundle()).windowTitle(), UpdatePages(english()).windowTitle());
    EXPECT_NE(UpdatePages(bundle()).notesAreMissing(), UpdatePages(english()).notesAreMissing());
    EXPECT_NE(UpdatePages(bundle()).pageIsNotOpened({}), UpdatePages(english()).pageIsNotOpened({}));
}

TEST_P(TranslatedUpdateTexts, sayForEachProblemThatKeepsAnUpdateFromBeingInstalledWhatToDo)
{
    using Kind = UpdateProblem::Kind;
    QSet<QString> said;
    for (const Kind kind : {Kind::Storage, Kind::NoKey, Kind::Signature, Kind::Archive, Kind::Contents,
             Kind::NotWritable, Kind::Superuser, Kind::Busy, Kind::Exchange}) {
        const QString text = troubleWithInstallation(english(), "1.1", kind);
        EXPECT_TRUE(text.startsWith("⚠ Version 1.1 was not installed. ")) << text.toStdString();
        const QString translated = troubleWithInstallation(bundle(), "1.1", kind);
        EXPECT_TRUE(translated.startsWith("⚠ ") && translated.contains("1.1")) << translated.toStdString();
        EXPECT_NE(translated, text);
        said += translated;
    }
    EXPECT_EQ(said.size(), 9);
}

TEST_P(TranslatedUpdateTexts, sayForEachReasonNotToLookWhatToDo)
{
    using Kind = UpdateProblem::Kind;
    QSet<QString> said;
    for (const Kind kind : {Kind::NoKey, Kind::NotWritable, Kind::Superuser, Kind::None}) {
        EXPECT_NE(troubleWithChecks(bundle(), kind), troubleWithChecks(english(), kind));
        said += troubleWithChecks(bundle(), kind);
    }
    EXPECT_EQ(said.size(), 4);
}

TEST_P(UpdateTexts, giveEveryButtonOfAPageAKeyOfItsOwn)
{
    for (const UpdatePage &page : allPages(bundle())) {
        QSet<QString> keys;
        for (const UpdateButton &button : page.buttons)
            keys += QKeySequence::mnemonic(button.text).toString();
        EXPECT_EQ(keys.size(), page.buttons.size()) << page.heading.toStdString();
        EXPECT_FALSE(keys.contains(QString())) << page.heading.toStdString();
    }
}

TEST_P(UpdateTexts, fitIntoTheWindow)
{
    expectToFit();
}

TEST_P(UpdateTexts, fitIntoTheMirroredWindow)
{
    const Qt::LayoutDirection before = QApplication::layoutDirection();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    expectToFit();
    QApplication::setLayoutDirection(before);
}

TEST_P(UpdateTexts, fitWithALargeFont)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 1.5);
    QApplication::setFont(large);
    expectToFit();
    QApplication::setFont(before);
}

TEST_P(UpdateTexts, fitOntoASmallScreen)
{
    constexpr QSize smallScreenWithinAFrame(640 - 16, 480 - 48);
    UpdateWindow window("Update", iconOfProduct());
    for (const UpdatePage &page : allPages(bundle())) {
        window.setPage(page);
        EXPECT_LE(window.minimumWidth(), smallScreenWithinAFrame.width()) << page.heading.toStdString();
        EXPECT_LE(window.minimumHeight(), smallScreenWithinAFrame.height()) << page.heading.toStdString();
    }
}
