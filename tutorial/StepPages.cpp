#include "tutorial/StepPages.h"

#include "KTXConstants.h"
#include "tutorial/KeyNames.h"
#include "tutorial/TutorialText.h"

namespace {

/// In the texts %1 are the modifiers, %2 is the key and %3 the one that follows it.
struct StepTexts
{
    const char *title;
    QString key; ///< the action whose key is pressed
    QString thenHeld, thenPressed; ///< and what comes after it, with the modifiers held and without
    const char *held, *heldThen; ///< with the modifiers held: what to do, and what once the frame has moved
    const char *pressed, *pressedThen; ///< the same where pressing them twice begins
    const char *done;
};

const QList<StepTexts> &stepTexts()
{
    static const QList<StepTexts> table{
        {"Go to the next window", KTXRightPref, {}, KTXSnapPref,
            "Hold %1 and press %2. A frame goes to the next window; let go to be there.",
            "There it is. Now let go of %1.",
            "Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.",
            "There it is. Now press %3.", "You are in the next window."},
        {"Go round the edge", KTXRightPref, {}, KTXSnapPref,
            "The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. "
            "Then let go.",
            "Let go of %1 when the frame is around the circle.",
            "The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. "
            "Then press %3.",
            "Press %3 when the frame is around the circle.", "Round the edge, and back at the row's beginning."},
        {"Reach a window that is covered", KTXUnderPref, {}, KTXSnapPref,
            "A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.",
            "Let go of %1 when the frame is around the star.",
            "A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. "
            "Then press %3.",
            "Press %3 when the frame is around the star.", "There is the star."},
        {"Change your mind", KTXRightPref, KTXCancelPref, KTXCancelPref,
            "Hold %1 and press %2. Before you let go, press %3: nothing will have changed.",
            "Now press %3 while you hold %1.", "Press %1 twice, then %2. Now press %3: nothing will have changed.",
            "Now press %3.", "You are where you were."},
        {"Go further", KTXRightPref, KTXSnapPref, KTXSnapPref,
            "Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.",
            "At the triangle, press %3 or let go.",
            "Press %1 twice, then %2 until the frame is around the triangle. Then press %3.",
            "At the triangle, press %3.", "You are at the triangle."},
        {"Do something with a window", KTXScreenClosePref, {}, {},
            "Hold %1 and press %2. That closes the window you are in, here the star.",
            "Let go, and press %2 with %1 in the star.",
            "Press %1 twice, then %2. That closes the window you are in, here the star.", "Now press %2.",
            "The star is closed."},
    };
    return table;
}

const QString &keyAfter(const StepTexts &texts, const AgentReport &report)
{
    return report.beginsByDoublePress ? texts.thenPressed : texts.thenHeld;
}

QString filled(const char *text, const StepTexts &texts, const AgentReport &report)
{
    return tutorialText(text)
        .replace(QStringLiteral("%1"), modifierNames(report.modifiers))
        .replace(QStringLiteral("%2"), keyName(report, texts.key))
        .replace(QStringLiteral("%3"), keyName(report, keyAfter(texts, report)));
}

GuidePage::Cap between(const char *text)
{
    return {tutorialText(text), false};
}

QList<GuidePage::Cap> capsOfModifiers(const AgentReport &report)
{
    QList<GuidePage::Cap> caps;
    for (const QString &cap : modifierCaps(report.modifiers))
        caps += GuidePage::Cap{cap};
    caps += report.beginsByDoublePress ? between("twice, then") : between("+");
    return caps;
}

QList<GuidePage::Cap> capsOf(const StepTexts &texts, const AgentReport &report)
{
    QList<GuidePage::Cap> caps = capsOfModifiers(report) + QList{GuidePage::Cap{keyName(report, texts.key)}};
    if (const QString after = keyName(report, keyAfter(texts, report)); !after.isEmpty())
        caps += {between("then"), {after}};
    return caps;
}

void remarkOn(GuidePage &page, const StepRun &run, const StepTexts &texts, const AgentReport &report)
{
    using Phase = StepRun::Phase;
    switch (run.phase()) {
    case Phase::Waiting:
        break;
    case Phase::Selecting:
        page.remark = filled(report.beginsByDoublePress ? texts.pressedThen : texts.heldThen, texts, report);
        break;
    case Phase::Missed:
        page.remark = run.step() == Step::Cancel
            ? filled("That came too late. Press %3 while the frame is there.", texts, report)
            : tutorialText("That led somewhere else. Try once more from here.");
        page.tone = GuidePage::Tone::Hint;
        break;
    case Phase::Done:
        page.remark = tutorialText(texts.done);
        page.tone = GuidePage::Tone::Good;
        break;
    }
}

} // namespace

GuidePage pageOfStep(const StepRun &run, const AgentReport &report)
{
    const StepTexts &texts = stepTexts().at(qsizetype(run.step()));
    GuidePage page{.title = tutorialText(texts.title), .caps = capsOf(texts, report)};
    page.text = filled(report.beginsByDoublePress ? texts.pressed : texts.held, texts, report);
    if (run.step() == Step::Under && report.cyclesAscending)
        page.remark = tutorialText("It may take several presses: your settings go through the windows upwards.");
    remarkOn(page, run, texts, report);
    return page;
}

GuidePage pageOfEnd(const AgentReport &report)
{
    GuidePage page{.title = tutorialText("That is all it takes"), .caps = capsOfModifiers(report)};
    for (const QString &action : {KTXLeftPref, KTXUpPref, KTXDownPref, KTXRightPref, KTXUnderPref}) {
        if (report.works(action))
            page.caps += GuidePage::Cap{keyName(report, action)};
    }
    page.text =
        tutorialText("These keys work in every program. All of them can be changed in Lumaroo's settings, where "
                     "you find this tutorial again.");
    page.first = {Wish::Leave, tutorialText("&Finish")};
    page.second = {Wish::StartOver, tutorialText("&Once more")};
    return page;
}
