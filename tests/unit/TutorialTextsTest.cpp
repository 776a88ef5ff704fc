// The tutorial's texts: every one has its German, with the same keys in it, and each page's buttons have keys of their
// own.

#include "KTXActionKeys.h"
#include "KTXConstants.h"
#include "SourceTree.h"
#include "TestBundle.h"
#include "tutorial/PreparationPage.h"
#include "tutorial/StepPages.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QLocale>
#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

const NSBundle *built()
{
    return NSBundle::bundleWithPath(
        qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane/Contents/Resources/LumarooTutorial.app");
}

QString inGerman(const QString &english)
{
    return built()->localizedStringForKeyValueTable(english, "none", "Tutorial");
}

/// What stands in quotation marks in the sources that have texts, put together where it goes over lines.
QStringList quotedTexts()
{
    static const QRegularExpression quoted("\"((?:[^\"\\\\]|\\\\.)*)\"");
    static const QRegularExpression seam("\"\\s*\"");
    const SourceTree tree(qEnvironmentVariable("LUMAROO_SOURCE"));
    QStringList texts;
    for (const QString &file : tree.files().filter(QRegularExpression("^tutorial/.*(Page|Pages|Course|GuideWindow|"
                                                                      "KeyNames|PracticeWindow)\\.cpp$"))) {
        const QString source = tree.lines(file).filter(QRegularExpression("^(?!#include)")).join('\n').remove(seam);
        for (auto match = quoted.globalMatch(source); match.hasNext();)
            texts += match.next().captured(1);
    }
    return texts;
}

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

class TutorialTexts : public testing::Test
{
protected:
    TutorialTexts() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    ~TutorialTexts() override { QLocale::setDefault(previous_); }

private:
    QLocale previous_;
};

} // namespace

TEST_F(TutorialTexts, haveAllTheirGermanWithTheSameKeys)
{
    int sentences = 0;
    for (const QString &text : quotedTexts()) {
        const bool isWords = text.contains(' ') && text.size() > 7 && !text.startsWith(' ');
        if (!isWords)
            continue;
        ++sentences;
        EXPECT_NE(inGerman(text), u"none") << qPrintable(text);
        EXPECT_EQ(placeholdersOf(inGerman(text)), placeholdersOf(text)) << qPrintable(text);
    }
    EXPECT_GT(sentences, 60);
}

TEST_F(TutorialTexts, nameTheKeysThatAreSet)
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

TEST_F(TutorialTexts, leaveNothingOpenWhateverBeginsASelection)
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

TEST_F(TutorialTexts, offerSomethingAtEachObstacle)
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
