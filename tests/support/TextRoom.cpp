#include "TextRoom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTextDocument>

namespace {

QSize sizeOfLine(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

QSize sizeOfRichText(const QLabel *label, int width)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(label->font());
    document.setHtml(label->text());
    document.setTextWidth(width);
    return document.size().toSize();
}

/// What the label draws: in lines that end where the room does, if it may break them.
QSize sizeOfText(const QLabel *label, const QSize &room)
{
    if (label->textFormat() == Qt::RichText
        || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text())))
        return sizeOfRichText(label, room.width());
    if (!label->wordWrap())
        return sizeOfLine(label, label->text());
    constexpr int anyHeight = 10'000;
    return label->fontMetrics()
        .boundingRect(QRect(0, 0, room.width(), anyHeight), Qt::TextWordWrap | Qt::TextShowMnemonic, label->text())
        .size();
}

TextRoom roomOfLabel(const QLabel *label)
{
    const int around = 2 * label->margin();
    const QSize given = label->contentsRect().size() - QSize(around, around);
    return {label->text(), sizeOfText(label, given), given};
}

TextRoom roomOfButton(const QAbstractButton *button, QStyle::SubElement contents)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    const QSize given = button->style()->subElementRect(contents, &option, button).size();
    const int besides = button->icon().isNull() ? 0 : button->iconSize().width() + 4;
    return {button->text(), sizeOfLine(button, button->text()) + QSize(besides, 0), given};
}

QList<TextRoom> roomsOfItems(const QComboBox *popUp)
{
    QStyleOptionComboBox option;
    option.initFrom(popUp);
    const QSize given =
        popUp->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, popUp).size();
    QList<TextRoom> rooms;
    for (int index = 0; index < popUp->count(); ++index)
        rooms += {popUp->itemText(index), sizeOfLine(popUp, popUp->itemText(index)), given};
    return rooms;
}

} // namespace

QList<TextRoom> textRoomsOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text().isEmpty() ? QList<TextRoom>() : QList{roomOfLabel(label)};
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return {roomOfButton(button, QStyle::SE_PushButtonContents)};
    if (const auto *button = qobject_cast<const QCheckBox *>(widget))
        return {roomOfButton(button, QStyle::SE_CheckBoxContents)};
    if (const auto *button = qobject_cast<const QRadioButton *>(widget))
        return {roomOfButton(button, QStyle::SE_RadioButtonContents)};
    if (const auto *popUp = qobject_cast<const QComboBox *>(widget))
        return roomsOfItems(popUp);
    return {};
}
