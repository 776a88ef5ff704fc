#include "platform/appkit/controls/NSUserDefaultsController.h"

#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSMatrix.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/NSNumber.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QCheckBox>
#include <QComboBox>
#include <algorithm>
#include <functional>

namespace {

/// Shows a stored value, or with no value the state that the control had at first.
using Show = std::function<void(const QVariant &stored)>;

bool isSame(const QVariant &value, const QVariant &stored)
{
    return value.typeId() == QMetaType::Bool ? value.toBool() == boolValue(stored) : isEqualPropertyList(value, stored);
}

/// The place among a binding's values that a stored one has, or the place of the first state.
int placeOf(const QVariant &stored, const QVariantList &values, int firstPlace)
{
    const auto place = std::find_if(
        values.cbegin(), values.cend(), [&stored](const QVariant &value) { return isSame(value, stored); });
    return stored.isValid() && place != values.cend() ? int(place - values.cbegin()) : firstPlace;
}

bool isOn(const QVariant &stored, bool isNegated, bool firstState)
{
    return stored.isValid() ? boolValue(stored) != isNegated : firstState;
}

Show stateOf(QCheckBox *box, const DefaultsBinding &binding)
{
    return [box, isNegated = binding.isNegated, first = box->isChecked()](
               const QVariant &stored) { setState(box, isOn(stored, isNegated, first) ? NSOnState : NSOffState); };
}

Show itemOf(QComboBox *popUp, const DefaultsBinding &binding)
{
    return [popUp, values = binding.values, first = popUp->currentIndex()](
               const QVariant &stored) { popUp->setCurrentIndex(placeOf(stored, values, first)); };
}

Show cellOf(NSMatrix *matrix, const DefaultsBinding &binding)
{
    const int first = int(matrix->cells().indexOf(matrix->selectedCell()));
    return [matrix, values = binding.values, first](
               const QVariant &stored) { matrix->selectCell(matrix->cells().value(placeOf(stored, values, first))); };
}

Show valueOf(QObject *control, const DefaultsBinding &binding)
{
    if (auto *box = qobject_cast<QCheckBox *>(control))
        return stateOf(box, binding);
    if (auto *popUp = qobject_cast<QComboBox *>(control))
        return itemOf(popUp, binding);
    if (auto *matrix = qobject_cast<NSMatrix *>(control))
        return cellOf(matrix, binding);
    return {};
}

/// Ends with the control.
void follow(QObject *control, const DefaultsBinding &binding, const Show &show)
{
    const auto update = [binding, show] { show(CFPreferencesCopyAppValue(binding.key, binding.domain)); };
    update();
    if (binding.isOnceOnly)
        return;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        control, [update](const NSNotification &) { update(); }, NSUserDefaultsDidChangeNotification, binding.domain);
}

} // namespace

NSUserDefaultsController *NSUserDefaultsController::sharedUserDefaultsController()
{
    static NSUserDefaultsController controller;
    return &controller;
}

bool NSUserDefaultsController::bindValue(QObject *control, const DefaultsBinding &binding)
{
    const Show show = valueOf(control, binding);
    if (show)
        follow(control, binding, show);
    return bool(show);
}

void NSUserDefaultsController::bindEnabled(QObject *control, const DefaultsBinding &binding)
{
    const bool first = isEnabled(control);
    follow(control, binding, [control, isNegated = binding.isNegated, first](const QVariant &stored) {
        setEnabled(control, isOn(stored, isNegated, first));
    });
}
