#include "grid/MainTableModel.h"
#include "grid/opened/OpenDataset.h"
#include "tests/support/ScriptedDataset.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class TestMainTableModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsCellsAlignedByType();
    void headersShowNamesOrLabelsAndHintAtTheOther();
    void sameHeaderModeResetsNothing();
    void sortingCarriesObservationNumbersAlong();
    void resetsOnlyWhenTheOrderChanges();
    void hasHeadersWithoutRows();

private:
    std::unique_ptr<ScriptedDataset> m_dataset;
};

namespace {

constexpr auto up = Qt::AscendingOrder;
constexpr auto down = Qt::DescendingOrder;

QStringList cellTexts(const MainTableModel& model, int column)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row) {
        result << model.index(row, column).data().toString();
    }
    return result;
}

QStringList headers(const MainTableModel& model, Qt::Orientation orientation,
                    int role = Qt::DisplayRole)
{
    QStringList result;
    const int count = orientation == Qt::Horizontal ? model.columnCount() : model.rowCount();
    for (int section = 0; section < count; ++section) {
        result << model.headerData(section, orientation, role).toString();
    }
    return result;
}

}  // namespace

void TestMainTableModel::init()
{
    m_dataset = std::make_unique<ScriptedDataset>();
    m_dataset->variable("NAME", TypeCode::Character, "First name")
        .variable("AGE", TypeCode::Double)
        .variable("VISIT", TypeCode::Int16, "Visit number");
    m_dataset->row({"J\xC3\xBCrgen ", 31.0, 1.0}).row({"Ann", 27.5, 10.0});
    m_dataset->row({"Bob", ScriptedDataset::missing, 9.0});
}

void TestMainTableModel::showsCellsAlignedByType()
{
    OpenDataset opened(*m_dataset);
    MainTableModel model(&opened);
    const QAbstractItemModelTester tester(&model);

    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.columnCount(), 3);
    QCOMPARE(cellTexts(model, 0), QStringList({QString::fromUtf8("J\xC3\xBCrgen"), "Ann", "Bob"}));
    QCOMPARE(cellTexts(model, 1), QStringList({"31", "27.5", "."}));
    const auto alignment = [&](int column) {
        return model.index(0, column).data(Qt::TextAlignmentRole).toInt();
    };
    QCOMPARE(alignment(0), int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(alignment(1), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(alignment(2), int(Qt::AlignRight | Qt::AlignVCenter));
    for (const int role : {Qt::ToolTipRole, Qt::ForegroundRole, Qt::FontRole, Qt::EditRole}) {
        QVERIFY(!model.index(0, 0).data(role).isValid());
    }
}

void TestMainTableModel::headersShowNamesOrLabelsAndHintAtTheOther()
{
    OpenDataset opened(*m_dataset);
    MainTableModel model(&opened);
    const QAbstractItemModelTester tester(&model);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QStringList names{"NAME", "AGE", "VISIT"};
    const QStringList labels{"First name", "", "Visit number"};

    QCOMPARE(headers(model, Qt::Horizontal), names);
    QCOMPARE(headers(model, Qt::Horizontal, Qt::ToolTipRole), labels);
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());

    model.setHeaderMode(HeaderMode::VariableLabels);
    QCOMPARE(resets.count(), 1);
    QCOMPARE(headers(model, Qt::Horizontal), labels);
    QCOMPARE(headers(model, Qt::Horizontal, Qt::ToolTipRole), names);
}

void TestMainTableModel::sameHeaderModeResetsNothing()
{
    OpenDataset opened(*m_dataset);
    MainTableModel model(&opened);
    const QAbstractItemModelTester tester(&model);
    QSignalSpy resets(&model, &QAbstractItemModel::modelAboutToBeReset);

    model.setHeaderMode(HeaderMode::VariableNames);
    QCOMPARE(resets.count(), 0);
}

void TestMainTableModel::sortingCarriesObservationNumbersAlong()
{
    OpenDataset opened(*m_dataset);
    MainTableModel model(&opened);
    const QAbstractItemModelTester tester(&model);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);

    model.sortRows({{1, down}});
    QCOMPARE(cellTexts(model, 1), QStringList({"31", "27.5", "."}));
    model.sortRows({{0, up}});
    QCOMPARE(cellTexts(model, 1), QStringList({"27.5", ".", "31"}));
    QCOMPARE(headers(model, Qt::Vertical), QStringList({"2", "3", "1"}));
    QCOMPARE(model.observationAt(2), 0);

    model.resetSort();
    QCOMPARE(headers(model, Qt::Vertical), QStringList({"1", "2", "3"}));
    QCOMPARE(resets.count(), 2);
    QCOMPARE(layouts.count(), 0);
}

void TestMainTableModel::resetsOnlyWhenTheOrderChanges()
{
    OpenDataset opened(*m_dataset);
    MainTableModel model(&opened);
    const QAbstractItemModelTester tester(&model);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    model.resetSort();
    model.sortRows({});
    QCOMPARE(resets.count(), 0);
    model.sortRows({{2, up}});  // as texts: "1", "10", "9", which is the order already
    QCOMPARE(resets.count(), 0);
    model.sortRows({{2, down}});
    model.sortRows({{2, down}});
    QCOMPARE(resets.count(), 1);
    QCOMPARE(headers(model, Qt::Vertical), QStringList({"3", "2", "1"}));
}

void TestMainTableModel::hasHeadersWithoutRows()
{
    ScriptedDataset dataset;
    dataset.variable("A", TypeCode::Double).variable("B", TypeCode::Character);
    OpenDataset opened(dataset);
    MainTableModel model(&opened);
    const QAbstractItemModelTester tester(&model);

    model.sortRows({{0, down}});
    model.resetSort();
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(headers(model, Qt::Horizontal), QStringList({"A", "B"}));
}

QTEST_GUILESS_MAIN(TestMainTableModel)
#include "TestMainTableModel.moc"
