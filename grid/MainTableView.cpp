#include "grid/MainTableView.h"

#include "data/StatDataset.h"
#include "grid/filter/ParseError.h"
#include "grid/GridContextMenu.h"
#include "grid/GridCopy.h"
#include "grid/GridCounters.h"
#include "grid/GridEmptiness.h"
#include "grid/MainTableModel.h"
#include "grid/WaitCursor.h"

#include <spdlog/spdlog.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPainter>

#include <algorithm>
#include <new>

MainTableView::MainTableView(OpenDataset* opened, QWidget* parent)
    : GridTable(opened, parent)
    , m_panels(*this)
{
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &MainTableView::showContextMenu);
    connectHeaders();
    connectCornerButton();
    gridcommands::installShortcuts(*this);
}

void MainTableView::connectHeaders()
{
    QHeaderView* header = horizontalHeader();
    connect(header, &QHeaderView::sectionClicked, this, [this](int variable) {
        constexpr Qt::KeyboardModifiers selecting = Qt::ControlModifier | Qt::ShiftModifier;
        if ((QGuiApplication::keyboardModifiers() & selecting) == Qt::NoModifier) {
            onHeaderClicked(variable);
        } else {
            showSort();  // which any click has turned the indicator from
        }
    });
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &MainTableView::showHeaderMenu);
}

void MainTableView::connectCornerButton()
{
    const auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    if (corner == nullptr) {
        spdlog::warn("Corner button not found");
        return;
    }
    connect(corner, &QAbstractButton::clicked, this, &MainTableView::onCornerClicked,
            Qt::UniqueConnection);
}

void MainTableView::setModel(QAbstractItemModel* model)
{
    GridTable::setModel(model);
    if (isReady()) {
        connect(this, &MainTableView::signalSort, tableModel(), &MainTableModel::sortRows);
        connect(this, &MainTableView::signalResetSort, tableModel(), &MainTableModel::resetSort);
        followOpenDataset();
    }
}

void MainTableView::followOpenDataset()
{
    connect(opened(), &OpenDataset::signalFiltersChanged, this, &MainTableView::showFilters);
    connect(opened(), &OpenDataset::signalVariablesChanged, this, &MainTableView::showVariables);
    connect(opened(), &OpenDataset::signalByListChanged, this, &MainTableView::signalAddByVar);
    connect(opened(), &OpenDataset::signalSorted, this, &MainTableView::showSort);
    connect(opened(), &OpenDataset::signalFrequencyAsked, &m_panels, &GridPanels::countFrequencies);
    showSort();
}

void MainTableView::paintEvent(QPaintEvent* event)
{
    GridTable::paintEvent(event);
    const QString text = isReady() ? gridemptiness::text(*opened()) : QString();
    if (!text.isEmpty()) {
        constexpr int margin = 24;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignCenter | Qt::TextWordWrap, text);
    }
}

// What the open dataset tells

void MainTableView::showFilters()
{
    applyRowVisibility();
    publishCounters();
    publishFilters();
}

void MainTableView::showVariables()
{
    columns().followBits();
    tellVariables();
}

void MainTableView::tellVariables()
{
    leaveHiddenColumn();
    publishCounters();
    viewport()->update();  // where no column is left, that is said there
    emit signalVarHideUnhide();
}

void MainTableView::showSort()
{
    const SortKeys keys = opened() == nullptr ? SortKeys() : opened()->sortKeys();
    const SortKey shown = keys.empty() ? SortKey(-1, Qt::AscendingOrder) : keys.front();
    horizontalHeader()->setSortIndicator(shown.first, shown.second);
    publishCounters();
}

void MainTableView::updateAll()
{
    if (isReady() && columns().followBits()) {
        tellVariables();
    }
    showFilters();
}

void MainTableView::publishCounters()
{
    emit signalObsNo(gridcounters::rows(dataset(), shownRowCount()));
    emit signalVarNo(gridcounters::variables(dataset()));
}

void MainTableView::publishFilters()
{
    emit signalLibraryFilter(opened() == nullptr ? QString() : opened()->libraryFilterText());
    emit signalFilter(opened() == nullptr ? QString() : opened()->datasetFilterText());
}

// Sorting

void MainTableView::onHeaderClicked(int logicalIndex)
{
    SortKeys keys = opened() == nullptr ? SortKeys() : opened()->sortKeys();
    const auto key = std::find_if(keys.begin(), keys.end(), [&](const SortKey& candidate) {
        return candidate.first == logicalIndex;
    });
    if (key == keys.end()) {
        keys = {{logicalIndex, Qt::AscendingOrder}};
    } else {
        key->second = key->second == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    }
    const WaitCursor waitCursor;
    emit signalSort(keys);
    if (isReady() && shownRowCount() == 0) {
        makeCurrent(logicalIndex);  // as the view does itself where there are cells
        cmdSelectCol();
    }
}

/// The view has selected all by the same click.
void MainTableView::onCornerClicked()
{
    const WaitCursor waitCursor;
    emit signalResetSort();
}

// Columns

void MainTableView::cmdHideUnhideColumn(int column)
{
    if (isReady() && columns().followBit(column)) {
        tellVariables();
    }
}

void MainTableView::cmdHideColumn()
{
    if (isCurrentVariableShown()) {
        opened()->setShown({{currentVariable()}}, false);
    }
}

void MainTableView::cmdHideColumns()
{
    if (isReady()) {
        opened()->setShown(selected().variables(), false);
    }
}

void MainTableView::cmdUnhidecolumns()
{
    if (isReady()) {
        opened()->showAllVariables();
    }
}

void MainTableView::cmdGotoVariable()
{
    emit signalShowDockVar(currentVariable());
}

void MainTableView::cmdGotoVariable(int variable)
{
    if (!isReady() || variable < 0 || variable >= dataset()->variableCount()) {
        return;
    }
    if (!opened()->variables().isShown(variable)) {
        emit signalMessage(tr("The variable %1 is hidden.").arg(opened()->nameOf(variable)));
        return;
    }
    makeCurrent(variable);
}

void MainTableView::cmdGotoObservation(int observation)
{
    const int row = isReady() ? tableModel()->rowOf(observation) : -1;
    if (row < 0) {
        return;
    }
    if (!rows().isShown(row)) {
        emit signalMessage(tr("Observation %1 is hidden by a filter.").arg(observation + 1));
        return;
    }
    setCurrentIndex(model()->index(row, std::max(currentVariable(), 0)));
    scrollTo(currentIndex());
}

void MainTableView::shiftVariableLeft()
{
    shiftVariable(-1);
}

void MainTableView::shiftVariableRight()
{
    shiftVariable(1);
}

void MainTableView::shiftVariable(int step)
{
    if (isReady() && opened()->shiftVariable(currentVariable(), step) && currentIndex().isValid()) {
        scrollTo(currentIndex());
    }
}

void MainTableView::cmdSelectCol()
{
    if (isCurrentVariableShown()) {
        selectionModel()->select(gridselection::ofWholeColumns(*model(), {currentVariable()}),
                                 QItemSelectionModel::ClearAndSelect);
    }
}

// Copies

void MainTableView::cmdCopy(bool includeNames)
{
    copy(includeNames ? gridcopy::ofSelectionWithNames : gridcopy::ofSelection);
}

void MainTableView::cmdCopyStoredValues()
{
    copy(gridcopy::ofStoredValues);
}

void MainTableView::copy(QString (*textOf)(const GridTable&))
{
    if (isReady() && selectionModel()->hasSelection()) {
        const WaitCursor waitCursor;
        QGuiApplication::clipboard()->setText(textOf(*this));
    }
}

void MainTableView::copyColHeader()
{
    const std::vector<int> variables = selectedOrCurrentVariables();
    if (!variables.empty()) {
        QGuiApplication::clipboard()->setText(gridcopy::namesOf(*this, variables));
    }
}

// Filters

/// Shows the wait cursor while the rows are selected, and not while the user reads what failed.
void MainTableView::filter(const std::function<CommandOutcome()>& apply)
{
    if (!isReady()) {
        return;
    }
    const auto outcome = [&] {
        const WaitCursor waitCursor;
        return apply();
    }();
    report(outcome);
}

void MainTableView::report(const CommandOutcome& outcome)
{
    if (outcome) {
        emit signalCommandFailed(*outcome);
    }
}

void MainTableView::setFilterOperator(CompareOp op)
{
    m_cellFilters.setOp(op);
    emit signalFilterOperator();
}

void MainTableView::cmdWhere()
{
    filter([this] { return m_cellFilters.compare(*this); });
}

void MainTableView::cmdApplyLf()
{
    filter([this] { return m_cellFilters.compareForLibrary(*this); });
}

void MainTableView::cmdDfUndo()
{
    filter([this] {
        opened()->undo();
        return CommandOutcome();
    });
}

void MainTableView::cmdRunCommand(const QString& commandText)
{
    m_lastCommand = commandText;
    if (!isReady()) {
        return;
    }
    const WaitCursor waitCursor;
    const CommandOutcome outcome = opened()->run(commandText, Dialect::Command);
    if (outcome) {
        throw ParseError(outcome->message.toStdString());
    }
}

// By variables

void MainTableView::cmdAddByVar(const std::string& variable)
{
    if (isReady() && !opened()->addByVariable(QString::fromStdString(variable))) {
        spdlog::warn("Warning: there is no variable named {}", variable);
    }
}

void MainTableView::addCurrentByVariable()
{
    if (isCurrentVariableShown()) {
        cmdAddByVar(opened()->nameOf(currentVariable()).toStdString());
    }
}

void MainTableView::cmdClearByVar()
{
    if (isReady()) {
        opened()->clearByVariables();
    }
}

// Analyses

std::vector<int> MainTableView::selectedOrCurrentVariables() const
{
    if (!isReady()) {
        return {};
    }
    std::vector<int> variables = selected().variables();
    if (variables.empty() && isCurrentVariableShown()) {
        variables.push_back(currentVariable());
    }
    return variables;
}

void MainTableView::showFrequencyOfSelected(bool frequencyN)
{
    m_panels.countFrequencies(selectedOrCurrentVariables(), frequencyN);
}

void MainTableView::showStatistics()
{
    const std::vector<int> variables =
        shownRowCount() == 0 ? selectedOrCurrentVariables() : selected().variables();
    const auto result = [&] {
        const WaitCursor waitCursor;
        return opened()->statisticsOf(variables);
    }();
    if (const auto* problem = std::get_if<statistics::Problem>(&result)) {
        const StatisticsPanel::Message message = StatisticsPanel::messageOf(*problem);
        emit signalInform(message.title, message.text);
        return;
    }
    m_panels.statistics()->showResult(std::get<statistics::Table>(result), variables.front());
    refreshDescDock();
}

void MainTableView::refreshDescDock()
{
    if (QTableWidget* table = m_panels.statistics()->table()) {
        emit signalShowDockDesc(table);
    }
}

// Keys and menus

void MainTableView::run(GridCommand command)
{
    if (!isReady()) {
        return;
    }
    report(failureOf(QString(), [&] { gridcommands::entryOf(command).run(*this); }));
}

void MainTableView::showContextMenu(const QPoint& position)
{
    auto* menu =
        new GridContextMenu(opened() == nullptr ? QString() : opened()->uniqueVarName(), this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &GridContextMenu::signalCommand, this, &MainTableView::run);
    menu->popup(viewport()->mapToGlobal(position));
}

/// The entries act on the current variable, which is the one whose header was clicked.
void MainTableView::showHeaderMenu(const QPoint& position)
{
    const int variable = horizontalHeader()->logicalIndexAt(position);
    if (isReady() && variable >= 0) {
        makeCurrent(variable);
    }
    showContextMenu(
        viewport()->mapFromGlobal(horizontalHeader()->viewport()->mapToGlobal(position)));
}
