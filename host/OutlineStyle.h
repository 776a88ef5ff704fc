#pragma once

#include <QPalette>
#include <QProxyStyle>

/// Fusion with outlines that stand out from what is around them.
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
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
        QStyleHintReturn *returnData = nullptr) const override;

private:
    QPalette outlined(const QPalette &palette) const;
    /// Draws with outlines if the option is one of the named kind.
    template <typename Option>
    bool drawOutlined(
        PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const;

    // Fusion keeps pictures by palette: equal palettes shall stay the same one.
    mutable qint64 lastKey_ = -1;
    mutable QPalette lastOutlined_;
};
