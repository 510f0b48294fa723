#pragma once

#include <QProxyStyle>

/// Fusion, with what is hard to see there made plain: the keyboard focus, which is one pixel in a
/// shade of the highlight, the current tab, and in the dark look the frames and grid lines, which
/// are darker than the dark window.
class ThemeStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ThemeStyle();

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returnData) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};
