#include "platform/appkit/controls/Controls.h"

#include <QComboBox>

bool isPopUp(const QObject *control)
{
    return qobject_cast<const QComboBox *>(control) != nullptr;
}

bool selectItemWithTag(QObject *popUp, int itemTag)
{
    auto *comboBox = qobject_cast<QComboBox *>(popUp);
    const int index = comboBox ? comboBox->findData(itemTag) : -1;
    if (index < 0)
        return false;
    comboBox->setCurrentIndex(index);
    return true;
}

int selectedItemTag(const QObject *popUp)
{
    const auto *comboBox = qobject_cast<const QComboBox *>(popUp);
    const QVariant itemTag = comboBox ? comboBox->currentData() : QVariant();
    return itemTag.isValid() ? itemTag.toInt() : -1;
}
