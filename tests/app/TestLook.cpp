#include "app/look/Icons.h"
#include "app/look/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>

/// Whether the light and the dark look can be read, and the icons told apart.
class TestLook : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { theme::apply(false); }
    void textsAreReadableOnTheirGrounds();
    void focusIsSeen();
    void currentCellIsSeenWithinASelection();
    void iconsStandOutInBothLooks();
};

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// The relative luminance of WCAG 2.1.
double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// The contrast ratio of WCAG 2.1, from 1 to 21.
double contrast(const QColor& left, const QColor& right)
{
    const auto [darker, lighter] = std::minmax({luminance(left), luminance(right)});
    return (lighter + 0.05) / (darker + 0.05);
}

int countPixels(const QImage& image, const std::function<bool(const QColor&)>& counts)
{
    int count = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        count += counts(image.pixelColor(i % image.width(), i / image.width())) ? 1 : 0;
    }
    return count;
}

int pixelsLike(const QImage& image, const QColor& colour)
{
    return countPixels(image, [&](const QColor& pixel) {
        return std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green())
            + std::abs(pixel.blue() - colour.blue())
            <= 24;
    });
}

QImage imageOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(32, 32), 1.0, mode).toImage();
}

}  // namespace

void TestLook::textsAreReadableOnTheirGrounds()
{
    // #767676 is the lightest grey that reaches 4.5 on white: 4.54 by other calculators.
    QVERIFY(std::abs(contrast(QColor("#767676"), Qt::white) - 4.54) < 0.005);
    using P = QPalette;
    const QList<std::pair<P::ColorRole, P::ColorRole>> pairs{{P::WindowText, P::Window},
                                                             {P::Text, P::Base},
                                                             {P::Text, P::AlternateBase},
                                                             {P::PlaceholderText, P::Base},
                                                             {P::ButtonText, P::Button},
                                                             {P::ButtonText, P::Window},
                                                             {P::Link, P::Window},
                                                             {P::Link, P::Base},
                                                             {P::HighlightedText, P::Highlight},
                                                             {P::LinkVisited, P::Window},
                                                             {P::LinkVisited, P::Base},
                                                             {P::ToolTipText, P::ToolTipBase},
                                                             {P::BrightText, P::Window},
                                                             {P::BrightText, P::Base}};
    for (const bool dark : {false, true}) {
        const P palette = theme::palette(dark);
        for (const auto& [text, ground] : pairs) {
            for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
                const double ratio =
                    contrast(palette.color(group, text), palette.color(group, ground));
                QVERIFY2(ratio >= (group == P::Disabled ? 2.5 : 4.5),
                         qPrintable(QString("%1 on %2: %3").arg(text).arg(ground).arg(ratio)));
            }
        }
    }
}

void TestLook::focusIsSeen()
{
    for (const bool dark : {false, true}) {
        theme::apply(dark);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        const QList<QWidget*> widgets{new QLineEdit, new QComboBox, new QPushButton("x"),
                                      new QToolButton, new QCheckBox("x")};
        for (QWidget* widget : widgets) {
            layout->addWidget(widget);
            widget->setFocusPolicy(Qt::StrongFocus);
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QColor colour = theme::focusColour(window.palette(), false);
        QVERIFY(contrast(colour, window.palette().color(QPalette::Window)) >= 3.0);
        for (qsizetype i = 0; i < widgets.size(); ++i) {
            widgets[(i + 1) % widgets.size()]->setFocus();
            const int before = pixelsLike(widgets[i]->grab().toImage(), colour);
            widgets[(i + 4) % widgets.size()]->setFocus();
            QTest::keyClick(&window, Qt::Key_Tab);
            QVERIFY(widgets[i]->hasFocus());
            QVERIFY2(pixelsLike(widgets[i]->grab().toImage(), colour) >= before + 20,
                     widgets[i]->metaObject()->className());
        }
    }
}

void TestLook::currentCellIsSeenWithinASelection()
{
    for (const bool dark : {false, true}) {
        theme::apply(dark);
        QTableWidget table(3, 3);
        table.resize(400, 200);
        table.show();
        QVERIFY(QTest::qWaitForWindowActive(&table));
        table.setFocus();
        table.setCurrentCell(1, 1);
        table.selectAll();
        const QImage image = table.viewport()->grab().toImage();
        const auto framed = [&](int row, int column) {
            return pixelsLike(image.copy(table.visualRect(table.model()->index(row, column))),
                              table.palette().color(QPalette::HighlightedText));
        };
        QVERIFY(framed(1, 1) > framed(0, 0) + table.columnWidth(1));
    }
}

void TestLook::iconsStandOutInBothLooks()
{
    QVERIFY(icons::names().size() > 30);
    QVERIFY(icons::icon("no-such-icon").isNull());
    QCOMPARE(imageOf(icons::forDataset("a.csv.SAV")), imageOf(icons::icon("type-sav")));
    QCOMPARE(imageOf(icons::forDataset("a.csv/b")), imageOf(icons::icon("type-other")));
    for (const bool dark : {false, true}) {
        theme::apply(dark);
        const QColor window = QApplication::palette().color(QPalette::Window);
        for (const QString& name : icons::names()) {
            const int plain = countPixels(imageOf(icons::icon(name)), [&](const QColor& pixel) {
                return pixel.alpha() > 200 && contrast(pixel, window) >= 3.0;
            });
            QVERIFY2(plain > 60 && plain < 600, qPrintable(name));  // of 1024
            const QImage disabled = imageOf(icons::icon(name), QIcon::Disabled);
            const auto isColourful = [](const QColor& pixel) {
                return pixel.alpha() > 200 && pixel.saturation() >= 16;
            };
            QVERIFY2(countPixels(disabled, isColourful) == 0, qPrintable(name));
            QVERIFY(countPixels(disabled, [](const QColor& p) { return p.alpha() > 200; }) > 60);
        }
    }
}

QTEST_MAIN(TestLook)
#include "TestLook.moc"
