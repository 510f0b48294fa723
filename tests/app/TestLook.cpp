#include "app/look/Icons.h"
#include "app/look/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

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

/// The share of an icon's pixels that stand out from a ground.
double shareOfPlainPixels(const QImage& image, const QColor& ground)
{
    int plain = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            plain += colour.alpha() > 200 && contrast(colour, ground) >= 3.0 ? 1 : 0;
        }
    }
    return double(plain) / (image.width() * image.height());
}

int pixelsLike(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int difference = std::abs(pixel.red() - colour.red())
                + std::abs(pixel.green() - colour.green()) + std::abs(pixel.blue() - colour.blue());
            count += difference <= 24 ? 1 : 0;
        }
    }
    return count;
}

QImage imageOf(const QIcon& icon, int size = 32)
{
    return icon.pixmap(QSize(size, size), 1.0).toImage();
}

const QStringList wantedIcons{"about",         "clear",   "close",         "compare",   "darkmode",
                              "documentation", "filter",  "find",          "folder",    "layout1",
                              "layout2",       "layout3", "layout4",       "library",   "log",
                              "new-program",   "open",    "options",       "quickopen", "run",
                              "save",          "session", "type-csv",      "type-dta",  "type-json",
                              "type-other",    "type-r",  "type-sas7bdat", "type-sav",  "type-xpt",
                              "undo",          "update"};

}  // namespace

class TestLook : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { theme::apply(false); }
    void contrastIsComputedAsDefined();
    void textsAreReadableOnTheirGrounds_data();
    void textsAreReadableOnTheirGrounds();
    void darkLookHasItsSheetAndPalette();
    void lightLookComesBackWithoutASheet();
    void focusIsSeen_data();
    void focusIsSeen();
    void currentCellIsSeenWithinASelection_data() { lookRows(); }
    void currentCellIsSeenWithinASelection();
    void fieldsAndGridLinesAreSeenInTheDark();
    void everyIconIsThere();
    void iconsStandOutInBothLooks_data() { lookRows(); }
    void iconsStandOutInBothLooks();
    void iconFollowsTheLook();
    void iconIsDrawnForTheScreen_data();
    void iconIsDrawnForTheScreen();
    void disabledIconHasNoColour();
    void unknownIconIsEmpty();
    void datasetIconGoesByTheSuffix_data();
    void datasetIconGoesByTheSuffix();
    void applicationIconHasAllSizes();

private:
    static void lookRows();
};

void TestLook::lookRows()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestLook::contrastIsComputedAsDefined()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
    // #767676 is the lightest grey that reaches 4.5 on white: 4.54 by other calculators.
    QVERIFY(std::abs(contrast(QColor("#767676"), Qt::white) - 4.54) < 0.005);
}

void TestLook::textsAreReadableOnTheirGrounds_data()
{
    using P = QPalette;
    struct Pair
    {
        const char* name;
        P::ColorRole text;
        P::ColorRole ground;
    };
    const Pair pairs[] = {
        {"window", P::WindowText, P::Window},
        {"text", P::Text, P::Base},
        {"text in every other row", P::Text, P::AlternateBase},
        {"placeholder", P::PlaceholderText, P::Base},
        {"button", P::ButtonText, P::Button},
        {"button without a ground", P::ButtonText, P::Window},
        {"selection", P::HighlightedText, P::Highlight},
        {"link", P::Link, P::Window},
        {"link in a text", P::Link, P::Base},
        {"visited link", P::LinkVisited, P::Window},
        {"visited link in a text", P::LinkVisited, P::Base},
        {"error", P::BrightText, P::Window},
        {"error in a text", P::BrightText, P::Base},
        {"tool tip", P::ToolTipText, P::ToolTipBase},
    };
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("least");
    for (const bool dark : {false, true}) {
        const P palette = theme::palette(dark);
        for (const Pair& pair : pairs) {
            for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
                QTest::addRow("%s, %s, group %d", dark ? "dark" : "light", pair.name, int(group))
                    << palette.color(group, pair.text) << palette.color(group, pair.ground)
                    << (group == P::Disabled ? 2.5 : 4.5);
            }
        }
    }
}

void TestLook::textsAreReadableOnTheirGrounds()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QFETCH(double, least);
    QCOMPARE(text.alpha(), 255);
    QCOMPARE(ground.alpha(), 255);
    const double ratio = contrast(text, ground);
    QVERIFY2(ratio >= least,
             qPrintable(QStringLiteral("%1 on %2: %3").arg(text.name(), ground.name()).arg(ratio)));
}

void TestLook::darkLookHasItsSheetAndPalette()
{
    theme::apply(true);

    QVERIFY(qApp->styleSheet().startsWith(
        "QToolTip { color: white; background-color: #333; border: 1px solid #666; }"
        "QMenu { background-color: #333; }QMenu::item { background-color: transparent; }"
        "QMenu::item:selected { background-color: #505050; }"
        "QMenuBar { background-color: #444; color: white; }"));
    QVERIFY(theme::isDark(QApplication::palette()));
    QCOMPARE(QApplication::palette().color(QPalette::Base),
             theme::palette(true).color(QPalette::Base));
}

void TestLook::lightLookComesBackWithoutASheet()
{
    theme::apply(true);
    theme::apply(false);

    QCOMPARE(qApp->styleSheet(), QString());
    QCOMPARE(QApplication::style()->objectName(), "fusion");
    QVERIFY(!theme::isDark(QApplication::palette()));
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
    QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Text),
             theme::palette(false).color(QPalette::Disabled, QPalette::Text));
}

void TestLook::focusIsSeen_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QString>("widget");
    for (const bool dark : {false, true}) {
        for (const char* widget :
             {"line edit", "combo box", "push button", "tool button", "check box"}) {
            QTest::addRow("%s, %s", dark ? "dark" : "light", widget) << dark << widget;
        }
    }
}

void TestLook::focusIsSeen()
{
    QFETCH(bool, dark);
    QFETCH(QString, widget);
    theme::apply(dark);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const QList<QPair<QString, QWidget*>> widgets{{"line edit", new QLineEdit},
                                                  {"combo box", new QComboBox},
                                                  {"push button", new QPushButton("x")},
                                                  {"tool button", new QToolButton},
                                                  {"check box", new QCheckBox("x")}};
    QWidget* wanted = nullptr;
    for (const auto& [name, candidate] : widgets) {
        layout->addWidget(candidate);
        candidate->setFocusPolicy(Qt::StrongFocus);
        wanted = name == widget ? candidate : wanted;
    }
    QVERIFY(wanted != nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QColor colour = theme::focusColour(window.palette(), false);
    wanted->clearFocus();
    const int before = pixelsLike(wanted->grab().toImage(), colour);

    for (int step = 0; step < widgets.size() && !wanted->hasFocus(); ++step) {
        QTest::keyClick(&window, Qt::Key_Tab);
    }

    QVERIFY(wanted->hasFocus());
    const int after = pixelsLike(wanted->grab().toImage(), colour);
    QVERIFY2(after >= before + 20,
             qPrintable(QStringLiteral("%1, then %2").arg(before).arg(after)));
    QVERIFY(contrast(colour, window.palette().color(QPalette::Window)) >= 3.0);
}

void TestLook::currentCellIsSeenWithinASelection()
{
    QFETCH(bool, dark);
    theme::apply(dark);
    QTableWidget table(3, 3);
    table.resize(400, 200);
    table.show();
    QVERIFY(QTest::qWaitForWindowActive(&table));
    table.setFocus();
    table.setCurrentCell(1, 1);
    table.selectAll();
    const QRect cell = table.visualItemRect(table.item(1, 1)).isEmpty()
        ? table.visualRect(table.model()->index(1, 1))
        : table.visualItemRect(table.item(1, 1));
    const QColor frame = table.palette().color(QPalette::HighlightedText);

    const QImage image = table.viewport()->grab().toImage();

    const int current = pixelsLike(image.copy(cell), frame);
    const int other = pixelsLike(image.copy(table.visualRect(table.model()->index(0, 0))), frame);
    QVERIFY2(current > other + cell.width(),
             qPrintable(QStringLiteral("%1 and %2").arg(current).arg(other)));
}

void TestLook::fieldsAndGridLinesAreSeenInTheDark()
{
    theme::apply(true);
    const QPalette palette = QApplication::palette();
    QVERIFY(contrast(theme::frameColour(palette), palette.color(QPalette::Window)) >= 2.5);
    QLineEdit edit;
    edit.resize(100, 24);
    QVERIFY(pixelsLike(edit.grab().toImage(), theme::frameColour(palette)) > 100);

    QTableWidget table(2, 2);
    QStyleOption option;
    option.initFrom(&table);
    const QColor line = QColor::fromRgba(static_cast<QRgb>(
        table.style()->styleHint(QStyle::SH_Table_GridLineColor, &option, &table)));
    QVERIFY(luminance(line) > luminance(palette.color(QPalette::AlternateBase)));
}

void TestLook::everyIconIsThere()
{
    QCOMPARE(icons::names(), wantedIcons);
    QVERIFY(QFile::exists(":/icons/resources/icons/quickopen.svg"));
    QVERIFY(QFile::exists(":/icons/resources/icons/filter.svg"));
    QVERIFY(QFile::exists(":quorlane/resources/icons/Quorlane.ico"));
}

void TestLook::iconsStandOutInBothLooks()
{
    QFETCH(bool, dark);
    theme::apply(dark);
    const QColor window = QApplication::palette().color(QPalette::Window);
    for (const QString& name : icons::names()) {
        const double share = shareOfPlainPixels(imageOf(icons::icon(name)), window);
        QVERIFY2(share > 0.06 && share < 0.6,
                 qPrintable(QStringLiteral("%1: %2").arg(name).arg(share)));
    }
}

void TestLook::iconFollowsTheLook()
{
    const QIcon icon = icons::icon("open");
    theme::apply(false);
    const QImage light = imageOf(icon);
    theme::apply(true);
    const QImage dark = imageOf(icon);

    QVERIFY(dark != light);
    theme::apply(false);
    QCOMPARE(imageOf(icon), light);
}

void TestLook::iconIsDrawnForTheScreen_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("small") << 16 << 1.0;
    QTest::newRow("small on a fine screen") << 16 << 2.0;
    QTest::newRow("between two sizes") << 24 << 1.5;
    QTest::newRow("large") << 128 << 1.0;
}

void TestLook::iconIsDrawnForTheScreen()
{
    QFETCH(int, size);
    QFETCH(qreal, ratio);
    const QPixmap pixmap = icons::icon("layout1").pixmap(QSize(size, size), ratio);

    QCOMPARE(pixmap.size(), QSize(size, size) * ratio);
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
    // Drawn at that size rather than stretched, an outline of 1.75 in 24 stays that wide.
    const QImage image = pixmap.toImage();
    int opaque = 0;
    for (int x = 0; x < image.width() / 4; ++x) {
        opaque += image.pixelColor(x, image.height() * 2 / 3).alpha() > 128 ? 1 : 0;
    }
    const double stroke = 1.75 * image.width() / 24;
    QVERIFY2(opaque >= stroke, qPrintable(QString::number(opaque)));
}

void TestLook::disabledIconHasNoColour()
{
    for (const bool dark : {false, true}) {
        theme::apply(dark);
        const QImage image =
            icons::icon("type-json").pixmap(QSize(32, 32), 1.0, QIcon::Disabled).toImage();
        int seen = 0;
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.alpha() > 200) {
                    ++seen;
                    QVERIFY2(colour.saturation() < 16, qPrintable(colour.name()));
                }
            }
        }
        QVERIFY(seen > 60);
    }
}

void TestLook::unknownIconIsEmpty()
{
    QVERIFY(icons::icon("no-such-icon").isNull());
}

void TestLook::datasetIconGoesByTheSuffix_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("icon");
    QTest::newRow("sas7bdat") << "/x/adsl.sas7bdat"
                              << "type-sas7bdat";
    QTest::newRow("capital letters") << "/x/DM.XPT"
                                     << "type-xpt";
    QTest::newRow("sav") << "a.sav"
                         << "type-sav";
    QTest::newRow("dta") << "a.dta"
                         << "type-dta";
    QTest::newRow("rds") << "a.rds"
                         << "type-r";
    QTest::newRow("rdata") << "a.RData"
                           << "type-r";
    QTest::newRow("rda") << "a.rda"
                         << "type-r";
    QTest::newRow("csv") << "a.csv"
                         << "type-csv";
    QTest::newRow("json") << "a.json"
                          << "type-json";
    QTest::newRow("ndjson") << "a.ndjson"
                            << "type-json";
    QTest::newRow("two points") << "a.csv.sav"
                                << "type-sav";
    QTest::newRow("other") << "a.txt"
                           << "type-other";
    QTest::newRow("none") << "folder.csv/a"
                          << "type-other";
}

void TestLook::datasetIconGoesByTheSuffix()
{
    QFETCH(QString, path);
    QFETCH(QString, icon);
    QCOMPARE(imageOf(icons::forDataset(path)), imageOf(icons::icon(icon)));
}

void TestLook::applicationIconHasAllSizes()
{
    QList<int> sizes;
    for (const QSize& size : icons::application().availableSizes()) {
        QCOMPARE(size.width(), size.height());
        sizes << size.width();
    }
    std::ranges::sort(sizes);
    QCOMPARE(sizes, QList<int>({16, 24, 32, 48, 64, 128, 256}));
}

QTEST_MAIN(TestLook)
#include "TestLook.moc"
