// The tutorial's texts: they name the keys, and in every language each page's buttons have keys of their own.

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "StringTables.h"
#include "tutorial/PreparationPage.h"
#include "tutorial/StepPages.h"

#include <QKeySequence>
#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

QStringList placeholdersOf(const QString &text)
{
    static const QRegularExpression placeholder("%\\d");
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found += match.next().captured();
    found.removeDuplicates();
    found.sort();
    return found;
}

AgentReport report(bool byDoublePress)
{
    AgentReport report;
    for (const KTXActionKey &action : KTXActionKeys())
        report.keys += {action.preferenceName, action.defaultKeyCode, {}};
    report.modifiers = 0x1800;
    report.beginsByDoublePress = byDoublePress;
    return report;
}

class TranslatedTutorial : public testing::TestWithParam<std::string>
{
protected:
    const QMap<QString, QString> texts = stringTable("tutorial", QString::fromStdString(GetParam()), "Tutorial").texts;
};

INSTANTIATE_TEST_SUITE_P(Language, TranslatedTutorial, testing::ValuesIn(translations()));

} // namespace

TEST_P(TranslatedTutorial, givesEveryButtonOfAPageAKeyOfItsOwn)
{
    const QStringList alwaysThere{"&Back", "&Skip this step", "&Leave the tutorial"};
    const QStringList whileKeysAreHeld{"&Use %1", "&Ask again", "Go on &without these keys", "&Leave the tutorial"};
    const QStringList whileItIsOff{"&Turn Lumaroo on", "&Leave the tutorial"};
    const QStringList whileItFails{"&Try again", "&Leave the tutorial"};
    const QStringList atTheEnd{"&Finish", "&Once more"};
    for (const QStringList &page : {alwaysThere, whileKeysAreHeld, whileItIsOff, whileItFails, atTheEnd}) {
        QSet<QString> keys;
        for (const QString &text : page)
            keys += QKeySequence::mnemonic(texts.value(text)).toString();
        EXPECT_EQ(keys.size(), page.size()) << page.join(", ").toStdString();
        EXPECT_FALSE(keys.contains(QString())) << page.join(", ").toStdString();
    }
}

TEST(TutorialTexts, nameTheKeysThatAreSet)
{
    AgentReport own = report(false);
    own.modifiers = 0x1100;
    for (AgentReport::Key &key : own.keys) {
        if (key.action == KTXRightPref)
            key.keyCode = VirtualKeyCode(123); // the arrow to the left
    }
    EXPECT_EQ(pageOfStep(StepRun(Step::Move), own).text,
        u"Hold Control+Super and press ←. A frame goes to the next window; let go to be there.");
    const GuidePage page = pageOfStep(StepRun(Step::Move), own);
    QStringList caps;
    for (const GuidePage::Cap &cap : page.caps)
        caps += cap.text;
    EXPECT_EQ(caps, QStringList({"⌃ Control", "⌘ Super", "+", "←"}));
}

TEST(TutorialTexts, leaveNothingOpenWhateverBeginsASelection)
{
    for (const bool byDoublePress : {false, true}) {
        for (int step = 0; step <= int(Step::Close); ++step) {
            StepRun run{Step(step)};
            run.begin(Shape::None);
            run.move();
            const GuidePage page = pageOfStep(run, report(byDoublePress));
            EXPECT_THAT(placeholdersOf(page.text + page.remark), IsEmpty()) << step;
            EXPECT_EQ(page.text.contains("twice"), byDoublePress) << qPrintable(page.text);
            EXPECT_FALSE(page.remark.isEmpty());
        }
    }
}

TEST(TutorialTexts, offerSomethingAtEachObstacle)
{
    for (int obstacle = int(Obstacle::NoBus); obstacle <= int(Obstacle::KeysUseless); ++obstacle) {
        const GuidePage page = pageOfPreparation({Obstacle(obstacle), {"→", "←"}, 0x1800, 0x1100});
        EXPECT_NE(page.first.wish, Wish::None) << obstacle;
        EXPECT_FALSE(page.title.isEmpty());
        EXPECT_THAT(placeholdersOf(page.text + page.first.text), IsEmpty()) << qPrintable(page.text);
    }
    const GuidePage held = pageOfPreparation({Obstacle::KeysHeld, {"→", "←"}, 0x1800, 0});
    EXPECT_EQ(held.first.wish, Wish::AskAgain);
    EXPECT_EQ(held.text,
        u"With Control+Alt, Lumaroo does not get these keys: → ←. Free them in that program, or choose others in "
        u"Lumaroo's settings; then ask again.");
}
