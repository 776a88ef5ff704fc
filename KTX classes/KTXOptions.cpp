#include "KTXOptions.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <algorithm>

const QList<KTXChoice> &KTXChoices()
{
    using enum KTXOnReading;
    const QString leftEdge = QStringLiteral("LeftEdge");
    const QString rightEdge = QStringLiteral("RightEdge");
    const QString topEdge = QStringLiteral("TopEdge");
    const QString bottomEdge = QStringLiteral("BottomEdge");
    const QString leadingEdge = QStringLiteral("LeadingEdge");
    const QString center = QStringLiteral("Center");
    // Reading knows three texts of each direction, and takes any other for one that no item has. So it leaves the
    // pop-up as it is for the center and the leading edge, which the interface file's binding shows when it is loaded.
    // The cycle is not read at all: its binding shows it, and follows it.
    static const QList<KTXChoice> all{
        {KTXCyclesAscendingTag, KTXCycleAscending, true, LeaveAsShown},
        {KTXCyclesDescendingTag, KTXCycleAscending, false, LeaveAsShown},
        {KTXHorizontalRightEdgeTag, KTXHSort, rightEdge, Select},
        {KTXHorizontalCenterTag, KTXHSort, center, LeaveAsShown},
        {KTXHorizontalLeftEdgeTag, KTXHSort, leftEdge, Select},
        {KTXHorizontalLeadingEdgeTag, KTXHSort, leadingEdge, LeaveAsShown},
        {KTXHorizontalFirstSelectedTag, KTXHSort, KTXFirstSelected, Select},
        {KTXVerticalTopEdgeTag, KTXVSort, topEdge, Select},
        {KTXVerticalCenterTag, KTXVSort, center, LeaveAsShown},
        {KTXVerticalBottomEdgeTag, KTXVSort, bottomEdge, Select},
        {KTXVerticalLeadingEdgeTag, KTXVSort, leadingEdge, LeaveAsShown},
        {KTXVerticalFirstSelectedTag, KTXVSort, KTXFirstSelected, Select},
    };
    return all;
}

namespace {

QList<KTXChoice>::const_iterator choiceFor(const QString &key, const QVariant &value)
{
    return std::find_if(KTXChoices().cbegin(), KTXChoices().cend(),
        [&](const KTXChoice &choice) { return choice.key == key && isEqualPropertyList(choice.value, value); });
}

} // namespace

KTXOptionTag itemToSelect(const QString &key, const QVariant &stored)
{
    const auto choice = choiceFor(key, stored);
    const bool isSelected = choice != KTXChoices().cend() && choice->onReading == KTXOnReading::Select;
    return isSelected ? choice->tag : KTXNoItemTag;
}

bool isChoice(const QString &key, const QVariant &value)
{
    return choiceFor(key, value) != KTXChoices().cend();
}
