#include "tutorial/Steps.h"

#include "KTXConstants.h"

#include <QStringList>
#include <algorithm>

namespace {

struct StepRow
{
    Step step;
    Shape start;
    QStringList actions; ///< whose keys it needs
};

const QList<StepRow> &stepTable()
{
    static const QList<StepRow> table{
        {Step::Move, Shape::Circle, {KTXRightPref}},
        {Step::Wrap, Shape::Triangle, {KTXRightPref}},
        {Step::Under, Shape::Square, {KTXUnderPref}},
        {Step::Cancel, Shape::Circle, {KTXRightPref, KTXCancelPref}},
        {Step::Accept, Shape::Circle, {KTXRightPref, KTXSnapPref}},
        {Step::Close, Shape::Star, {KTXScreenClosePref}},
    };
    return table;
}

} // namespace

QList<Step> possibleSteps(const AgentReport &report)
{
    QList<Step> steps;
    for (const StepRow &row : stepTable()) {
        const bool hasKeys = std::all_of(row.actions.cbegin(), row.actions.cend(),
            [&report](const QString &action) { return report.works(action); });
        if (hasKeys && (row.step != Step::Wrap || report.wrapsHorizontally))
            steps += row.step;
    }
    return steps;
}

Shape startOf(Step step)
{
    return stepTable().at(qsizetype(step)).start;
}
