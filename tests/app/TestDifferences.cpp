#include "app/compare/DifferenceView.h"
#include "app/compare/DifferenceWindow.h"
#include "app/compare/FrozenColumns.h"
#include "app/look/Theme.h"
#include "tests/support/ScriptedDataset.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// The grid of the differences of a comparison, and the window round it.
class TestDifferences : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void rowsTellBaseCompareAndDifference();
    void valuesThatLookAlikeShowWhatDiffers();
    void keysGoFromDifferenceToDifference();
    void cellStaysWhenOtherRowsAreShown();
    void hiddenVariablesCountForNothing();
    void datasetsAreToldWhichRowIsWanted();
    void columnsThatStayKeepTheirRows();
    void differingLettersAreSetOff();
    void filesHoldAllDifferences();
    void equalDatasetsHaveNothingToShow();

private:
    void open(const ScriptedDataset& base, const ScriptedDataset& compare,
              const comparison::Request& request);
    [[nodiscard]] const DifferenceModel& model() const { return m_window->view().differences(); }
    [[nodiscard]] QStringList row(int row) const;
    [[nodiscard]] QString place() const { return m_window->findChild<QLabel*>("place")->text(); }
    [[nodiscard]] QString current() const
    {
        const QModelIndex index = m_window->view().currentIndex();
        return QString("%1,%2").arg(index.row()).arg(index.column());
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&m_window->view(), static_cast<Qt::Key>(key), modifiers);
    }
    [[nodiscard]] QCheckBox* box(int number) const
    {
        return m_window->findChildren<QCheckBox*>().at(number);
    }

    ScriptedDataset m_base;
    ScriptedDataset m_compare;
    std::unique_ptr<DifferenceWindow> m_window;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

namespace {

void describe(ScriptedDataset& dataset)
{
    dataset.variable("ID", TypeCode::Character).variable("AGE", TypeCode::Double, "Age in years");
    dataset.variable("SAME", TypeCode::Double).variable("TERM", TypeCode::Character);
}

}  // namespace

void TestDifferences::open(const ScriptedDataset& base, const ScriptedDataset& compare,
                           const comparison::Request& request)
{
    auto result = comparison::Comparison::of(base, compare, request);
    QVERIFY(result);
    m_tester.reset();
    m_window = std::make_unique<DifferenceWindow>(
        std::make_shared<const comparison::Comparison>(std::move(result.value())));
    m_tester = std::make_unique<QAbstractItemModelTester>(m_window->view().model());
    m_window->resize(700, 300);
    m_window->show();
    m_window->view().setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

/// A is equal; B differs in all; C is in the base only; D differs in a text; E in the other only.
void TestDifferences::init()
{
    describe(m_base);
    describe(m_compare);
    m_base.row({"A", 30.0, 7.0, "rash"}).row({"B", 40.0, 7.0, "fever"});
    m_base.row({"C", 50.0, 7.0, "cough"}).row({"D", 60.0, 7.0, "Chest pain"});
    m_compare.row({"A", 30.0, 7.0, "rash"}).row({"B", 41.0, 7.0, "flu"});
    m_compare.row({"D", 60.0, 7.0, "Chest Pain"}).row({"E", 70.0, 7.0, "tired"});
    open(m_base, m_compare, {.id = {"ID"}});
}

void TestDifferences::cleanup()
{
    m_tester.reset();
    m_window.reset();
    std::destroy_at(&m_base);
    std::construct_at(&m_base);
    std::destroy_at(&m_compare);
    std::construct_at(&m_compare);
    theme::apply(false);
}

QStringList TestDifferences::row(int row) const
{
    QStringList texts;
    for (int column = 0; column < model().columnCount(); ++column) {
        texts << model().index(row, column).data().toString();
    }
    return texts;
}

void TestDifferences::rowsTellBaseCompareAndDifference()
{
    box(2)->click();
    QCOMPARE(model().rowCount(), 8);
    QCOMPARE(row(0), QStringList({"Base", "2", "B", "40", "fever"}));
    QCOMPARE(row(1), QStringList({"Compare", "2", "B", "41", "flu"}));
    QCOMPARE(row(2), QStringList({"Diff.", "", "", "1", ""}));
    QCOMPARE(row(3), QStringList({"% Diff", "", "", "2.5", ""}));
    QCOMPARE(row(4), QStringList({"Only in base", "3", "C", "50", "cough"}));
    QCOMPARE(row(6), QStringList({"Compare", "3", "D", "60", "Chest Pain"}));
    QCOMPARE(row(7), QStringList({"Only in compare", "4", "E", "70", "tired"}));
    QCOMPARE(model().index(1, 3).data(Qt::AccessibleTextRole).toString(), "41, differs");
    QCOMPARE(model().index(6, 3).data(Qt::AccessibleTextRole).toString(), "60");
    QVERIFY(model().index(0, 3).data(Qt::ToolTipRole).toString().contains("1 (2.5 %)"));
    QVERIFY(model().headerData(3, Qt::Horizontal, Qt::ToolTipRole).toString().contains("years"));
    box(0)->click();
    QCOMPARE(row(0), QStringList({"Base", "2", "B", "40", "7", "fever"}));
}

void TestDifferences::valuesThatLookAlikeShowWhatDiffers()
{
    ScriptedDataset base;
    ScriptedDataset compare;
    base.variable("X", TypeCode::Double).variable("T", TypeCode::Character).row({1.0, " x"});
    compare.variable("X", TypeCode::Double).variable("T", TypeCode::Character).row({3.0, "x"});
    open(base, compare, {});
    QCOMPARE(row(0), QStringList({"Base", "1", "1", " x"}));
    QCOMPARE(row(1), QStringList({"Compare", "1", "3", "x"}));
    m_window.reset();
}

void TestDifferences::keysGoFromDifferenceToDifference()
{
    QCOMPARE(current(), "0,3");
    QCOMPARE(place(), "Difference 1 of 5");
    const QStringList ways{"0,4", "3,0", "4,4", "6,0", "0,3"};
    for (int i = 0; i < 5; ++i) {
        i % 2 == 0 ? press(Qt::Key_F8) : press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(current(), ways[i]);
        QCOMPARE(place(), QString("Difference %1 of 5").arg((i + 1) % 5 + 1));
    }
    auto* wrapping = m_window->findChild<QLabel*>("wrapping");
    QCOMPARE(wrapping->text(), "Went on from the first difference");
    press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(wrapping->text(), "Went on from the last difference");
    QCOMPARE(current(), "6,0");
    press(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(current(), "4,4");
    QCOMPARE(wrapping->text(), "");
    press(Qt::Key_Left);
    QCOMPARE(place(), "Differences: 5");
    press(Qt::Key_Down);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "60");
}

void TestDifferences::cellStaysWhenOtherRowsAreShown()
{
    DifferenceView& view = m_window->view();
    view.setCurrentIndex(model().index(5, 4));  // D, compare, TERM
    box(0)->click();
    box(1)->click();
    QCOMPARE(current(), "7,5");
    QCOMPARE(view.currentIndex().data().toString(), "Chest Pain");
    view.setCurrentIndex(model().index(0, 4));  // A, which is equal, SAME
    box(0)->click();
    box(1)->click();
    QCOMPARE(current(), "0,4");
    QCOMPARE(view.currentIndex().data().toString(), "fever");
}

void TestDifferences::hiddenVariablesCountForNothing()
{
    auto* hidden = m_window->findChild<QLabel*>("hidden");
    QVERIFY(!hidden->isVisible());
    press(Qt::Key_H);
    QCOMPARE(place(), "Difference 1 of 4");
    QCOMPARE(row(0), QStringList({"Base", "2", "B", "fever"}));
    QVERIFY(hidden->isVisible());
    press(Qt::Key_H);
    QCOMPARE(hidden->text(), "Hidden variables: 2");
    QCOMPARE(model().rowCount(), 2);
    press(Qt::Key_H);  // in a column of no variable
    press(Qt::Key_U);
    QVERIFY(!hidden->isVisible());
    QCOMPARE(model().columnCount(), 5);
}

void TestDifferences::datasetsAreToldWhichRowIsWanted()
{
    QSignalSpy chosen(m_window.get(), &DifferenceWindow::signalRowChosen);
    DifferenceView& view = m_window->view();
    view.setCurrentIndex(model().index(5, 4));
    press(Qt::Key_Return);
    QCOMPARE(chosen.takeFirst(), QVariantList({3, 2, 3, 3}));
    view.setCurrentIndex(model().index(3, 0));
    press(Qt::Key_Enter);
    QCOMPARE(chosen.takeFirst(), QVariantList({2, -1, -1, -1}));
    const QRect cell = view.visualRect(model().index(6, 2));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, cell.center());
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.takeFirst(), QVariantList({-1, 3, 0, 0}));
}

void TestDifferences::columnsThatStayKeepTheirRows()
{
    ScriptedDataset base;
    ScriptedDataset compare;
    for (ScriptedDataset* dataset : {&base, &compare}) {
        const double shift = dataset == &base ? 0 : 0.5;
        for (int i = 0; i < 40; ++i) {
            dataset->variable("V" + std::to_string(i), TypeCode::Double);
        }
        dataset->rows(200, [shift](int row, int column) {
            return ScriptedDataset::Value(column == 0 ? row : 1000.0 * column + row + shift);
        });
    }
    open(base, compare, {.id = {"V0"}});
    DifferenceView& view = m_window->view();
    auto* frozen = view.findChild<FrozenColumns*>();
    QVERIFY(!frozen->isVisible());
    press(Qt::Key_F8, Qt::ShiftModifier);  // the last cell of all
    QVERIFY(frozen->isVisible());
    box(2)->click();  // with more rows
    const QModelIndex current = view.currentIndex();
    QCOMPARE(current.row(), 199 * 4);
    QTRY_COMPARE(frozen->visualRect(current.siblingAtColumn(0)).top(),
                 view.visualRect(current).top());
    QCOMPARE(frozen->verticalScrollBar()->value(), view.verticalScrollBar()->value());
    for (int column = current.column(); column > model().leadingColumns(); --column) {
        press(Qt::Key_Left);
        QVERIFY(view.visualRect(view.currentIndex()).left() >= frozen->coveredWidth());
    }
    m_window.reset();
}

void TestDifferences::differingLettersAreSetOff()
{
    for (const bool dark : {false, true}) {
        theme::apply(dark);
        DifferenceView& view = m_window->view();
        view.setCurrentIndex(model().index(0, 0));
        const QImage image = view.viewport()->grab().toImage();
        const auto colours = theme::differenceColours(view.palette());
        const auto count = [&](const QModelIndex& index, const QColor& colour) {
            const QImage cell = image.copy(view.visualRect(index));
            int pixels = 0;
            for (int i = 0; i < cell.width() * cell.height(); ++i) {
                pixels += cell.pixelColor(i % cell.width(), i / cell.width()) == colour ? 1 : 0;
            }
            return pixels;
        };
        for (const int line : {4, 5}) {  // "Chest pain", "Chest Pain"
            const QModelIndex term = model().index(line, 4);
            QVERIFY(count(term, colours.letters) > 20);
            QVERIFY(count(term, colours.letters) * 5 < count(term, colours.ground));
            QVERIFY(count(term, colours.mark) > 3);
            QCOMPARE(count(model().index(line, 3), colours.ground), 0);
        }
        QVERIFY(count(model().index(3, 3), colours.baseOnly) > 100);
        QVERIFY(count(model().index(6, 3), colours.compareOnly) > 100);
    }
}

void TestDifferences::filesHoldAllDifferences()
{
    const QTemporaryDir folder;
    const auto saved = [&](const QString& name) {
        const QString path = folder.filePath(name);
        if (const auto failure = m_window->save(path)) {
            return *failure;
        }
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    };
    press(Qt::Key_H);  // what is shown does not matter
    QVERIFY(saved("d.CSV").endsWith("value,AGE,2,2,B,40,41,1,2.5\n"
                                    "value,TERM,2,2,B,fever,flu,,\n"
                                    "value,TERM,4,3,D,Chest pain,Chest Pain,,\n"));
    QVERIFY(saved("d.txt").startsWith("Kind\tVariable\tBaseObs\tCompareObs\tID\t"));
    QVERIFY(m_window->save(folder.filePath("no/such/folder.txt")));
}

void TestDifferences::equalDatasetsHaveNothingToShow()
{
    open(m_base, m_base, {});
    QCOMPARE(m_window->findChild<QLabel*>("outcome")->text(), "Equal");
    QCOMPARE(place(), "Differences: 0");
    press(Qt::Key_F8);
    press(Qt::Key_H);
    press(Qt::Key_Return);
    QCOMPARE(model().rowCount(), 0);
    box(1)->click();
    box(0)->click();
    press(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(model().rowCount(), 8);
    QCOMPARE(row(7), QStringList({"Compare", "4", "D", "60", "7", "Chest pain"}));
}

QTEST_MAIN(TestDifferences)
#include "TestDifferences.moc"
