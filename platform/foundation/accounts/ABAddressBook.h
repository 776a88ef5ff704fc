#pragma once

#include "platform/foundation/Export.h"

#include <QList>
#include <QString>
#include <optional>
#include <utility>

inline const QString kABEmailProperty = QStringLiteral("Email");

/// The values of a property of which there may be several, each with an identifier; one of them is the primary one.
class LM_FOUNDATION ABMultiValue
{
public:
    ABMultiValue() = default;
    explicit ABMultiValue(const QString &value);

    /// Empty without a value.
    QString primaryIdentifier() const;
    /// -1 where no value has it.
    qsizetype indexForIdentifier(const QString &identifier) const;
    /// Empty where there is none.
    QString valueAtIndex(qsizetype index) const;

private:
    QList<std::pair<QString, QString>> values_; // identifier, value
};

/// A card.
class LM_FOUNDATION ABPerson
{
public:
    explicit ABPerson(const QString &email) : email_(email) { }

    /// No value for a property that the card has not got.
    std::optional<ABMultiValue> valueForProperty(const QString &property) const;

private:
    QString email_;
};

/// What the system knows of people: of this process's user alone, what the accounts service has.
class LM_FOUNDATION ABAddressBook
{
public:
    static ABAddressBook *sharedAddressBook();

    /// The user's own card, asked for anew each time. The calling thread waits for the service, 300 ms at most; no
    /// card where it does not answer by then, or knows no such user.
    std::optional<ABPerson> me() const;
};
