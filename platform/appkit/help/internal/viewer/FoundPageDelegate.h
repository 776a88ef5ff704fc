#pragma once

#include <QStyledItemDelegate>

/// Draws a page that was found: its title, and below it two lines of what stands around the words.
class FoundPageDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Role { ExcerptRole = Qt::UserRole, AddressRole };

    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
