#pragma once

#include <QList>
#include <QString>
#include <QVariant>

// The options' controls and what they store.

/// What the interface file tags controls, items and cells with.
enum KTXOptionTag {
    KTXNoItemTag = -1,
    KTXHorizontalWrapTag = 30,
    KTXVerticalWrapTag = 31,
    KTXCyclesAscendingTag = 50,
    KTXCyclesDescendingTag = 51,
    KTXHorizontalRightEdgeTag = 52,
    KTXHorizontalLeftEdgeTag = 53,
    KTXHorizontalFirstSelectedTag = 54,
    KTXVerticalTopEdgeTag = 55,
    KTXVerticalBottomEdgeTag = 56,
    KTXVerticalFirstSelectedTag = 57,
    KTXHorizontalLeadingEdgeTag = 58,
    KTXVerticalLeadingEdgeTag = 59,
    KTXHorizontalCenterTag = 60,
    KTXVerticalCenterTag = 61,
    KTXKeyRepeatTag = 70,
    KTXDelaySliderTag = 71,
    KTXRateSliderTag = 72,
    KTXAnimateTag = 73,
    KTXDoubleClickActivateTag = 74,
    KTXPersistentByDoubleClickTag = 74,
    KTXPersistentWithoutDoubleClickTag = 75,
};

/// Whether reading the settings selects the item of a value that is stored.
enum class KTXOnReading { Select, LeaveAsShown };

/// An item of a pop-up: choosing it stores the value.
struct KTXChoice
{
    KTXOptionTag tag;
    QString key;
    QVariant value;
    KTXOnReading onReading;
};

/// Every item, in the order in which a chosen one is compared with them.
const QList<KTXChoice> &KTXChoices();

/// The tag of the item that reading selects for a stored value; KTXNoItemTag where it leaves the pop-up as it is.
KTXOptionTag itemToSelect(const QString &key, const QVariant &stored);

/// Whether some item stores this value.
bool isChoice(const QString &key, const QVariant &value);

/// The order that goes where none is stored.
inline const QString KTXFirstSelected = QStringLiteral("FirstSelected");
