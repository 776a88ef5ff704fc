#pragma once

#include "platform/appkit/Export.h"

#include <QWidget>

/// A group of rows on a ground of its own, with rounded corners and a hairline between the rows: the items of its
/// layout, which has them one below the other. Hidden ones are none.
///
/// Its ground is the palette's for fields; what stands on the card has it as its window's colour.
class LM_APPKIT CardView : public QWidget
{
    Q_OBJECT

public:
    explicit CardView(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followPalette();

    bool following_ = false;
};
