#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

class TestMainTableView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void countersReadNaWithoutDataset();
    void countersFollowMasksAndVariables();
    void clickSortsByThatColumnAloneAndThenReverses();
    void realClickOnAHeaderSortsAndShowsTheIndicator();
    void sortingKeepsFilteredRowsHidden();
    void cornerButtonSelectsAllInDatasetOrder();
    void worksWithoutCornerButton();
    void filteringAtTheEndScrollsBackToWhatIsLeft();
    void filteringWithEverythingSelected();
    void currentCellKeepsItsObservation();
    void columnsFitTheirContentsWithinReason();
    void columnsFitWhatStandsFarBelow();
    void emptyDatasetShowsItsColumns();

private:
    [[nodiscard]] QStringList shownObservations() const;
    void checkRowsMatchMasks() const;

    std::unique_ptr<ScriptedDataset> m_dataset;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<OpenDataset> m_opened;
    std::unique_ptr<MainTableView> m_view;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestMainTableView::init()
{
    m_log = std::make_unique<LogCapture>();
    m_dataset = std::make_unique<ScriptedDataset>();
    m_dataset->variable("ID", TypeCode::Character).variable("AGE", TypeCode::Double);
    m_dataset->row({"c", 40.0}).row({"a", 60.0}).row({"d", 50.0}).row({"b", 70.0});
    m_opened = std::make_unique<OpenDataset>(*m_dataset);
    m_view = std::make_unique<MainTableView>(m_opened.get());
    auto* model = new MainTableModel(m_opened.get(), m_view.get());
    m_tester = std::make_unique<QAbstractItemModelTester>(model);
    m_view->setModel(model);
}

void TestMainTableView::cleanup()
{
    m_tester.reset();
    m_view.reset();
    m_opened.reset();
    m_dataset.reset();
    const std::string unannounced = m_log->take();
    m_log.reset();
    QCOMPARE(unannounced, std::string());
}

QStringList TestMainTableView::shownObservations() const
{
    QStringList result;
    for (int row = 0; row < m_view->model()->rowCount(); ++row) {
        if (!m_view->isRowHidden(row)) {
            result << m_view->model()->headerData(row, Qt::Vertical).toString();
        }
    }
    return result;
}

void TestMainTableView::checkRowsMatchMasks() const
{
    int shown = 0;
    for (int row = 0; row < m_dataset->observationCount(); ++row) {
        const auto observation = static_cast<std::size_t>(m_view->tableModel()->observationAt(row));
        const bool selected = m_dataset->libraryFilterMask().test(observation)
            && m_dataset->datasetFilterMask().test(observation);
        QCOMPARE(m_view->isRowHidden(row), !selected);
        shown += selected ? 1 : 0;
    }
    QCOMPARE(m_view->shownRowCount(), shown);
    QVERIFY(m_view->updatesEnabled());
    QVERIFY(!m_view->verticalHeader()->signalsBlocked());
}

void TestMainTableView::countersReadNaWithoutDataset()
{
    MainTableView view(nullptr);
    QSignalSpy rows(&view, &MainTableView::signalObsNo);
    QSignalSpy variables(&view, &MainTableView::signalVarNo);

    view.updateAll();
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: NA/NA");
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: NA/NA");
    QCOMPARE(view.currentVariable(), -1);
}

void TestMainTableView::countersFollowMasksAndVariables()
{
    QSignalSpy rows(m_view.get(), &MainTableView::signalObsNo);
    QSignalSpy variables(m_view.get(), &MainTableView::signalVarNo);

    m_view->updateAll();
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: 4/4");
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: 2/2");

    m_dataset->libraryFilterMask().reset(0);
    m_dataset->datasetFilterMask().reset(3);
    m_dataset->visibleVariables().reset(1);
    m_view->updateAll();
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: 2/4");
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: 1/2");
    QCOMPARE(shownObservations(), QStringList({"2", "3"}));
    checkRowsMatchMasks();

    m_dataset->libraryFilterMask().set();
    m_dataset->datasetFilterMask().set();
    m_view->updateAll();
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: 4/4");
    checkRowsMatchMasks();
}

void TestMainTableView::clickSortsByThatColumnAloneAndThenReverses()
{
    QSignalSpy sorts(m_view.get(), &MainTableView::signalSort);
    QSignalSpy rows(m_view.get(), &MainTableView::signalObsNo);
    const auto click = [&](int column) {
        m_view->onHeaderClicked(column);
        return sorts.takeLast().at(0).value<SortKeys>();
    };

    QCOMPARE(click(0), SortKeys({{0, Qt::AscendingOrder}}));
    QCOMPARE(shownObservations(), QStringList({"2", "4", "1", "3"}));
    QCOMPARE(click(1), SortKeys({{1, Qt::AscendingOrder}}));
    QCOMPARE(shownObservations(), QStringList({"1", "3", "2", "4"}));
    QCOMPARE(click(1), SortKeys({{1, Qt::DescendingOrder}}));
    QCOMPARE(shownObservations(), QStringList({"4", "2", "3", "1"}));
    QCOMPARE(m_view->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    QCOMPARE(click(1), SortKeys({{1, Qt::AscendingOrder}}));
    QCOMPARE(m_view->horizontalHeader()->sortIndicatorSection(), 1);
    QCOMPARE(m_view->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    QCOMPARE(m_view->opened()->sortKeys(), SortKeys({{1, Qt::AscendingOrder}}));
    QCOMPARE(rows.count(), 4);
}

void TestMainTableView::realClickOnAHeaderSortsAndShowsTheIndicator()
{
    QHeaderView* header = m_view->horizontalHeader();
    m_view->show();
    QCOMPARE(header->sortIndicatorSection(), -1);
    const auto click = [&](int column) {
        const QPoint middle(header->sectionViewportPosition(column)
                                + header->sectionSize(column) / 2,
                            header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, middle);
        return std::pair(header->sortIndicatorSection(), header->sortIndicatorOrder());
    };

    QCOMPARE(click(1), std::pair(1, Qt::AscendingOrder));
    QCOMPARE(shownObservations(), QStringList({"1", "3", "2", "4"}));
    QCOMPARE(click(1), std::pair(1, Qt::DescendingOrder));
    QCOMPARE(shownObservations(), QStringList({"4", "2", "3", "1"}));
    QCOMPARE(click(0), std::pair(0, Qt::AscendingOrder));
    QCOMPARE(shownObservations(), QStringList({"2", "4", "1", "3"}));
}

void TestMainTableView::sortingKeepsFilteredRowsHidden()
{
    m_dataset->datasetFilterMask().reset(1);
    m_dataset->libraryFilterMask().reset(2);
    m_view->updateAll();
    QCOMPARE(shownObservations(), QStringList({"1", "4"}));
    m_view->onHeaderClicked(0);
    QCOMPARE(shownObservations(), QStringList({"4", "1"}));
    checkRowsMatchMasks();
    m_dataset->datasetFilterMask().set(1);
    m_view->updateAll();
    QCOMPARE(shownObservations(), QStringList({"2", "4", "1"}));
    m_view->onHeaderClicked(0);
    QCOMPARE(shownObservations(), QStringList({"1", "4", "2"}));
    checkRowsMatchMasks();
}

void TestMainTableView::cornerButtonSelectsAllInDatasetOrder()
{
    auto* corner = m_view->findChild<QAbstractButton*>();
    QVERIFY(corner != nullptr);
    QSignalSpy resets(m_view.get(), &MainTableView::signalResetSort);
    m_dataset->datasetFilterMask().reset(1);
    m_view->updateAll();
    m_view->onHeaderClicked(1);
    m_view->onHeaderClicked(1);
    QCOMPARE(shownObservations(), QStringList({"4", "3", "1"}));

    corner->click();
    QCOMPARE(resets.count(), 1);
    QCOMPARE(shownObservations(), QStringList({"1", "3", "4"}));
    checkRowsMatchMasks();
    QVERIFY(m_view->opened()->sortKeys().empty());
    QCOMPARE(m_view->horizontalHeader()->sortIndicatorSection(), -1);
    QCOMPARE(m_view->selectionModel()->selection().size(), 1);
    QCOMPARE(m_view->selectionModel()->selection().at(0).height(), 4);
    QCOMPARE(m_view->selectionModel()->selection().at(0).width(), 2);

    m_view->onHeaderClicked(1);  // after which the column counts as new again
    QCOMPARE(m_view->opened()->sortKeys(), SortKeys({{1, Qt::AscendingOrder}}));
}

void TestMainTableView::worksWithoutCornerButton()
{
    QWidget elsewhere;
    auto* corner = m_view->findChild<QAbstractButton*>();
    corner->setParent(&elsewhere);  // not deleted, as Qt's view keeps using it
    const auto putBack = qScopeGuard([&] { corner->setParent(m_view.get()); });
    m_view->connectCornerButton();
    QCOMPARE(m_log->take(), std::string("warning: Corner button not found\n"));
    m_view->onHeaderClicked(0);
    QCOMPARE(shownObservations(), QStringList({"2", "4", "1", "3"}));
}

void TestMainTableView::filteringAtTheEndScrollsBackToWhatIsLeft()
{
    ScriptedDataset dataset;
    dataset.variable("N", TypeCode::Double);
    dataset.rows(20'000, [](int row, int) { return ScriptedDataset::Value(double(row)); });
    OpenDataset opened(dataset);
    MainTableView view(&opened);
    view.setModel(new MainTableModel(&opened, &view));
    view.resize(400, 300);
    view.show();
    view.scrollToBottom();

    dataset.datasetFilterMask().reset();
    dataset.datasetFilterMask().set(7).set(9'000);
    view.updateAll();
    QCOMPARE(view.shownRowCount(), 2);
    QCOMPARE(view.rowAt(0), 7);
    QCOMPARE(view.rowAt(view.rowHeight(7) + 1), 9'000);

    dataset.datasetFilterMask().set();
    view.updateAll();
    view.scrollToBottom();
    QCOMPARE(view.rowAt(view.viewport()->height() - 2), 19'999);
}

void TestMainTableView::filteringWithEverythingSelected()
{
    m_view->selectAll();
    m_dataset->datasetFilterMask().reset(2);
    m_view->updateAll();
    checkRowsMatchMasks();
    QCOMPARE(m_view->selectionModel()->selection().size(), 1);
    QCOMPARE(m_view->selectionModel()->selection().at(0).height(), 4);

    m_view->setCurrentIndex(m_view->model()->index(1, 1));
    m_dataset->datasetFilterMask().reset(3);
    m_view->updateAll();
    QVERIFY(m_view->selectionModel()->isSelected(m_view->model()->index(1, 1)));
}

void TestMainTableView::currentCellKeepsItsObservation()
{
    const auto current = [this] {
        const QModelIndex index = m_view->currentIndex();
        return index.isValid() ? m_view->tableModel()->observationAt(index.row()) : -1;
    };
    m_view->setCurrentIndex(m_view->model()->index(2, 1));  // "d" with 50
    QCOMPARE(m_view->currentVariable(), 1);
    m_view->onHeaderClicked(0);  // a b c d
    QCOMPARE(current(), 2);
    QCOMPARE(m_view->currentIndex().row(), 3);
    QVERIFY(m_view->selectionModel()->isSelected(m_view->currentIndex()));

    m_dataset->datasetFilterMask().reset(2);
    m_view->updateAll();
    QCOMPARE(current(), 0);  // "c", in the row above
    QVERIFY(m_view->selectionModel()->isSelected(m_view->currentIndex()));
    m_dataset->datasetFilterMask().reset();
    m_view->updateAll();
    QCOMPARE(current(), -1);
    QCOMPARE(m_view->currentVariable(), 1);
    m_view->onHeaderClicked(1);
    m_dataset->datasetFilterMask().set();
    m_view->updateAll();
    QCOMPARE(current(), 0);
    QCOMPARE(m_view->currentVariable(), 1);
}

void TestMainTableView::columnsFitTheirContentsWithinReason()
{
    ScriptedDataset dataset;
    dataset.variable("A", TypeCode::Character).variable("B", TypeCode::Character);
    dataset.row({"x", std::string(500, 'W')});
    OpenDataset opened(dataset);
    MainTableView view(&opened);
    view.setModel(new MainTableModel(&opened, &view));

    view.fitColumns();
    QVERIFY(view.columnWidth(0) < 100);
    QCOMPARE(view.columnWidth(1), 400);
    QVERIFY2(view.horizontalHeader()->maximumSectionSize() > 400, "the user may make it wider");
    QVERIFY(view.horizontalHeader()->resizeContentsPrecision() > 0);
}

void TestMainTableView::columnsFitWhatStandsFarBelow()
{
    ScriptedDataset dataset;
    dataset.variable("N", TypeCode::Double);
    dataset.rows(20000, [](int row, int) { return ScriptedDataset::Value(row * 10000.0); });
    OpenDataset opened(dataset);
    MainTableView view(&opened);
    view.setModel(new MainTableModel(&opened, &view));

    view.fitColumns();
    const QString widest = view.model()->index(19999, 0).data().toString();
    QVERIFY(view.columnWidth(0) > view.fontMetrics().horizontalAdvance(widest));
}

void TestMainTableView::emptyDatasetShowsItsColumns()
{
    ScriptedDataset dataset;
    dataset.variable("A", TypeCode::Character).variable("B", TypeCode::Double);
    OpenDataset opened(dataset);
    MainTableView view(&opened);
    view.setModel(new MainTableModel(&opened, &view));
    QSignalSpy rows(&view, &MainTableView::signalObsNo);

    view.onHeaderClicked(1);
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: 0/0");
    QCOMPARE(view.horizontalHeader()->count(), 2);
}

QTEST_MAIN(TestMainTableView)
#include "TestMainTableView.moc"
