#include "platform/appkit/controls/AddedDescription.h"

#include <QWidget>

void AddedDescription::set(QWidget *field, const QString &text)
{
    if (!field || text == added_)
        return;
    QString description = field->accessibleDescription();
    if (const qsizetype place = description.indexOf(added_); place >= 0 && !added_.isEmpty())
        description = (description.first(place) + description.sliced(place + added_.size()).trimmed()).trimmed();
    field->setAccessibleDescription((text + u' ' + description).trimmed());
    added_ = text;
}
