#include "app/look/ThemeStyle.h"

#include "app/look/Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace {

void drawFrame(QPainter* painter, const QRect& rect, const QPen& pen, qreal radius)
{
    const qreal inset = pen.widthF() / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter->restore();
}

void drawFocus(QPainter* painter, const QStyleOption& option, bool onSelection)
{
    drawFrame(painter, option.rect, QPen(theme::focusColour(option.palette, onSelection), 1.6), 2);
}

bool hasFocus(const QStyleOption& option)
{
    return option.state.testFlags(QStyle::State_HasFocus | QStyle::State_Enabled);
}

/// Frames what is typed or clicked into.
void drawField(QPainter* painter, const QStyleOption& option, qreal radius)
{
    if (hasFocus(option)) {
        drawFocus(painter, option, false);
    } else if (theme::isDark(option.palette)) {
        drawFrame(painter, option.rect, QPen(theme::frameColour(option.palette), 1), radius);
    }
}

/// Along the edge of the tab that is turned away from its page.
void drawCurrentTab(QPainter* painter, const QStyleOptionTab& tab)
{
    constexpr int width = 2;
    QRect edge = tab.rect;
    if (tab.shape == QTabBar::RoundedNorth) {
        edge.setHeight(width);
    } else if (tab.shape == QTabBar::RoundedSouth) {
        edge.setTop(edge.bottom() + 1 - width);
    } else {
        return;
    }
    painter->fillRect(edge, theme::focusColour(tab.palette, false));
}

/// The style draws the buttons of an inactive title in black.
QStyleOptionTitleBar readableTitle(const QStyleOptionTitleBar& option)
{
    QStyleOptionTitleBar title = option;
    title.state |= QStyle::State_Active;
    title.titleBarState |= QStyle::State_Active;
    title.palette.setColor(QPalette::Highlight, option.palette.color(QPalette::Button));
    title.palette.setColor(QPalette::HighlightedText, option.palette.color(QPalette::ButtonText));
    return title;
}

}  // namespace

ThemeStyle::ThemeStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
    // By which other code tells the style.
    setObjectName(QStringLiteral("fusion"));
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const
{
    if (hint == SH_Table_GridLineColor && option != nullptr && theme::isDark(option->palette)) {
        return static_cast<int>(option->palette.color(QPalette::Midlight).rgba());
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    // Cells always count as reached by the keyboard; a button only once its keys are used, a press
    // of the mouse shows by itself where it went.
    const bool byKeyboard = option->state.testFlag(State_KeyboardFocusChange);
    if (element == PE_FrameFocusRect) {
        if (byKeyboard) {
            drawFocus(painter, *option, option->state.testFlag(State_Selected));
        }
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_FrameLineEdit:
    case PE_IndicatorCheckBox:
        drawField(painter, *option, 2);
        break;
    case PE_IndicatorRadioButton:
        drawField(painter, *option, option->rect.height() / 2.0);
        break;
    case PE_PanelButtonCommand:
        if (byKeyboard && hasFocus(*option)) {
            drawFocus(painter, *option, false);
        }
        break;
    default:
        break;
    }
}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element != CE_TabBarTabShape || !option->state.testFlag(State_Selected)) {
        return;
    }
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
        drawCurrentTab(painter, *tab);
    }
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control == CC_TitleBar && title != nullptr && theme::isDark(option->palette)
        && !option->state.testFlag(State_Active)) {
        const QStyleOptionTitleBar readable = readableTitle(*title);
        QProxyStyle::drawComplexControl(control, &readable, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) {
        drawField(painter, *option, 2);
    }
}
