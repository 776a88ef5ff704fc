#pragma once

#include "platform/appkit/Export.h"

#include <QHash>
#include <QLabel>

/// A label in one of the window's text styles, made from the user's own font and palette and following both.
///
/// A title is larger, a heading bold; secondary text is smaller and paler, but keeps a contrast of 4.5:1 against its
/// window.
class LM_APPKIT StyledLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(TextStyle textStyle READ textStyle WRITE setTextStyle)

public:
    enum TextStyle { Body, Title, Heading, Secondary };
    Q_ENUM(TextStyle)

    explicit StyledLabel(QWidget *parent = nullptr);

    TextStyle textStyle() const { return textStyle_; }
    void setTextStyle(TextStyle textStyle);

    int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;

private:
    void applyTextStyle();
    void applyDirection();

    /// What the height depends on beside the width.
    struct Measured
    {
        QString text;
        QFont font;
        QMargins margins;
        int margin;
        int indent;
        int resolution;
        bool isWrapped;

        bool operator==(const Measured &) const = default;
    };

    TextStyle textStyle_ = Body;
    Qt::Alignment unmirrored_;
    bool applying_ = false;
    mutable Measured measured_ = {};
    mutable QHash<int, int> heights_; ///< of what is measured, by width
};

/// How far two colours stand apart, from 1 (not at all) to 21 (black and white); 4.5 is the least for text.
LM_APPKIT double contrastRatio(const QColor &one, const QColor &other);
