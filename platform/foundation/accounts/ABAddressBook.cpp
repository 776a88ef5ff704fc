#include "platform/foundation/accounts/ABAddressBook.h"

namespace {

const QString onlyIdentifier = QStringLiteral("0");

} // namespace

ABMultiValue::ABMultiValue(const QString &value) : values_{{onlyIdentifier, value}} { }

QString ABMultiValue::primaryIdentifier() const
{
    return values_.isEmpty() ? QString() : values_.first().first;
}

qsizetype ABMultiValue::indexForIdentifier(const QString &identifier) const
{
    for (qsizetype index = 0; index < values_.size(); ++index) {
        if (values_[index].first == identifier)
            return index;
    }
    return -1;
}

QString ABMultiValue::valueAtIndex(qsizetype index) const
{
    return values_.value(index).second;
}

std::optional<ABMultiValue> ABPerson::valueForProperty(const QString &property) const
{
    if (property != kABEmailProperty || email_.isEmpty())
        return {};
    return ABMultiValue(email_);
}
