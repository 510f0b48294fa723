#include "app/look/Theme.h"

#include "app/look/ThemeStyle.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

#include <array>
#include <memory>

namespace {

struct Colour
{
    QPalette::ColorRole role;
    const char* active;  ///< of the active and the inactive group
    const char* disabled;
};

constexpr std::array darkColours{
    Colour{QPalette::Window, "#2d2d2d", "#2d2d2d"},
    Colour{QPalette::WindowText, "#e6e6e6", "#8a8a8a"},
    Colour{QPalette::Base, "#1f1f1f", "#292929"},
    Colour{QPalette::AlternateBase, "#282828", "#2d2d2d"},
    Colour{QPalette::Text, "#e6e6e6", "#8a8a8a"},
    Colour{QPalette::PlaceholderText, "#9c9c9c", "#8a8a8a"},
    Colour{QPalette::BrightText, "#ff8a80", "#a8746f"},
    Colour{QPalette::Button, "#3a3a3a", "#333333"},
    Colour{QPalette::ButtonText, "#e6e6e6", "#8a8a8a"},
    Colour{QPalette::Highlight, "#2f6ea5", "#4a4a4a"},
    Colour{QPalette::HighlightedText, "#ffffff", "#b4b4b4"},
    Colour{QPalette::Link, "#7ab8ff", "#8a8a8a"},
    Colour{QPalette::LinkVisited, "#c9a3ff", "#8a8a8a"},
    Colour{QPalette::ToolTipBase, "#333333", "#333333"},
    Colour{QPalette::ToolTipText, "#ffffff", "#8f8f8f"},
    Colour{QPalette::Light, "#505050", "#464646"},
    Colour{QPalette::Midlight, "#434343", "#3e3e3e"},
    Colour{QPalette::Mid, "#262626", "#262626"},
    Colour{QPalette::Dark, "#191919", "#191919"},
    Colour{QPalette::Shadow, "#000000", "#000000"},
};

// The style's own values for these are hard to read: its greys on the grounds of disabled widgets,
// white on its light blue. Its bright text is white on white, and is what errors are written in.
constexpr std::array lightCorrections{
    Colour{QPalette::WindowText, "#000000", "#8a8a8a"},
    Colour{QPalette::Text, "#000000", "#8a8a8a"},
    Colour{QPalette::ButtonText, "#000000", "#8a8a8a"},
    Colour{QPalette::PlaceholderText, "#6b6b6b", "#8a8a8a"},
    Colour{QPalette::BrightText, "#b3261e", "#a8746f"},
    Colour{QPalette::Highlight, "#1f6fa8", "#919191"},
    Colour{QPalette::HighlightedText, "#ffffff", "#ffffff"},
    Colour{QPalette::Link, "#0a5cad", "#8a8a8a"},
    Colour{QPalette::LinkVisited, "#7a2fa0", "#8a8a8a"},
    Colour{QPalette::ToolTipText, "#000000", "#808080"},
};

void setColour(QPalette& palette, const Colour& colour)
{
    palette.setColor(QPalette::Active, colour.role, QColor(QLatin1String(colour.active)));
    palette.setColor(QPalette::Inactive, colour.role, QColor(QLatin1String(colour.active)));
    palette.setColor(QPalette::Disabled, colour.role, QColor(QLatin1String(colour.disabled)));
}

}  // namespace

namespace theme {

void apply(bool dark)
{
    // A sheet that is in force wraps the style, and would keep the old one's colours.
    qApp->setStyleSheet(QString());
    if (qobject_cast<ThemeStyle*>(QApplication::style()) == nullptr) {
        QApplication::setStyle(new ThemeStyle);  // the application owns it
    }
    const QPalette colours = palette(dark);
    QApplication::setPalette(colours);
    QToolTip::setPalette(colours);
    // Qt 6.4 leaves the palette of before to widgets that a sheet has styled.
    for (QWidget* widget : QApplication::allWidgets()) {
        if (!widget->testAttribute(Qt::WA_SetPalette)) {
            widget->setPalette(QPalette());
        }
    }
    qApp->setStyleSheet(styleSheet(dark));
}

QPalette palette(bool dark)
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette colours = fusion->standardPalette();
    if (dark) {
        for (const Colour& colour : darkColours) {
            setColour(colours, colour);
        }
    } else {
        for (const Colour& colour : lightCorrections) {
            setColour(colours, colour);
        }
    }
    return colours;
}

QString styleSheet(bool dark)
{
    if (!dark) {
        return {};
    }
    return QStringLiteral(
        "QToolTip { color: white; background-color: #333; border: 1px solid #666; }"
        "QMenu { background-color: #333; }"
        "QMenu::item { background-color: transparent; }"
        "QMenu::item:selected { background-color: #505050; }"
        "QMenuBar { background-color: #444; color: white; }"
        // The sheet draws the menus now, and knows no disabled entries unless it is told of them.
        "QMenu { border: 1px solid #666; }"
        "QMenu::item:disabled { color: #9a9a9a; }"
        "QMenuBar::item { background-color: transparent; padding: 4px 8px; }"
        "QMenuBar::item:selected { background-color: #5a5a5a; }"
        "QMenuBar::item:disabled { color: #a8a8a8; }");
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::WindowText).lightness()
        > palette.color(QPalette::Window).lightness();
}

QColor focusColour(const QPalette& palette, bool selected)
{
    if (selected) {
        return palette.color(QPalette::HighlightedText);
    }
    const QColor highlight = palette.color(QPalette::Highlight);
    return isDark(palette) ? highlight.lighter(160) : highlight;
}

QColor frameColour(const QPalette& palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const auto between = [](int from, int to) { return (3 * from + 2 * to) / 5; };
    return {between(window.red(), text.red()), between(window.green(), text.green()),
            between(window.blue(), text.blue())};
}

DifferenceColours differenceColours(const QPalette& palette)
{
    return isDark(palette)
        ? DifferenceColours{0x4a3a12, 0x7d5a00, 0xffb74d, 0xffc978, 0x4a2626, 0x1f3d2b}
        : DifferenceColours{0xfff0cc, 0xffd166, 0xc26a00, 0x8a4400, 0xfde7e4, 0xe0f3e6};
}

}  // namespace theme
