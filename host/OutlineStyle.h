#pragma once

#include <QProxyStyle>

/// Fusion with controls of our own drawing: flat, round, and with outlines that stand out from what is around them.
///
/// Fusion makes its outlines from the window's colour alone and a little darker, which leaves the check boxes of a dark
/// window all but invisible.
class OutlineStyle : public QProxyStyle
{
    Q_OBJECT

public:
    OutlineStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
        const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
        const QWidget *widget = nullptr) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
        QStyleHintReturn *returnData = nullptr) const override;

private:
    bool drawOwn(PrimitiveElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const;
    bool drawOwn(
        ComplexControl control, const QStyleOptionComplex &option, QPainter &painter, const QWidget *widget) const;
};
