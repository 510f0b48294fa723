#include "grid/MainTableView.h"

#include "data/StatDataset.h"
#include "grid/filter/VariableNames.h"
#include "grid/GridContextMenu.h"
#include "grid/GridCopy.h"
#include "grid/GridFilterCommands.h"
#include "grid/GridShortcuts.h"
#include "grid/MainTableModel.h"
#include "grid/StandaloneGridHost.h"
#include "grid/WaitCursor.h"

#include <spdlog/spdlog.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include <algorithm>
#include <new>

MainTableView::MainTableView(StatDataset* dataset, GridHost* host, QWidget* parent)
    : GridTable(dataset, parent)
    , m_ownHost(host == nullptr ? std::make_unique<StandaloneGridHost>() : nullptr)
    , m_host(host == nullptr ? m_ownHost.get() : host)
{
    if (dataset != nullptr) {
        m_rowTotal = dataset->observationCount();
        m_variableTotal = dataset->variableCount();
    }
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &MainTableView::showContextMenu);
    connectHeaders();
    connectCornerButton();
    gridshortcuts::install(this, [this](GridCommand command) { run(command); });
}

MainTableView::~MainTableView() = default;

void MainTableView::connectHeaders()
{
    QHeaderView* header = horizontalHeader();
    connect(header, &QHeaderView::sectionClicked, this, &MainTableView::onHeaderClicked);
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
        m_filterCommands = std::make_unique<GridFilterCommands>(*this, *dataset(), *m_host);
        m_filterCommands->joinLibraryFilter();
    }
}

// Sorting and counters

void MainTableView::onHeaderClicked(int logicalIndex)
{
    const auto key =
        std::find_if(m_sortKeys.begin(), m_sortKeys.end(),
                     [&](const SortKey& candidate) { return candidate.first == logicalIndex; });
    Qt::SortOrder order = Qt::AscendingOrder;
    if (key != m_sortKeys.end()) {
        order = key->second == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        key->second = order;
    } else {
        m_sortKeys = {{logicalIndex, order}};
    }
    horizontalHeader()->setSortIndicator(logicalIndex, order);
    resort([this] { emit signalSort(m_sortKeys); });
    if (isReady() && shownRowCount() == 0) {
        makeCurrent(logicalIndex);  // as the view does itself where there are cells
    }
}

void MainTableView::onCornerClicked()
{
    m_sortKeys.clear();
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    resort([this] { emit signalResetSort(); });
    selectAll();
}

/// Has the rows put in another order and the filtered ones hidden in their new places. The view is
/// not scrolled: after a sort people look at what comes first.
template <typename EmitSort>
void MainTableView::resort(EmitSort emitSort)
{
    if (!isReady()) {
        emitSort();
        return;
    }
    const WaitCursor waitCursor;
    const Place before = place();
    emitSort();
    showRows(before, Scrolling::Stay);
    publishCounters();
}

void MainTableView::updateAll()
{
    if (isReady()) {
        columns().followBits();
        leaveHiddenColumn();
    }
    showFilters();
}

void MainTableView::publishCounters()
{
    emit signalObsNo(rowCounter());
    emit signalVarNo(variableCounter());
}

QString MainTableView::rowCounter() const
{
    if (dataset() == nullptr || dataset()->observationCount() < 0) {
        return tr("Rows: NA/NA");
    }
    return tr("Rows: %1/%2").arg(shownRowCount()).arg(m_rowTotal);
}

QString MainTableView::variableCounter() const
{
    if (dataset() == nullptr || dataset()->variableCount() < 0) {
        return tr("Vars: NA/NA");
    }
    return tr("Vars: %1/%2").arg(dataset()->visibleVariables().count()).arg(m_variableTotal);
}

// Columns

void MainTableView::cmdHideUnhideColumn(int column)
{
    if (isReady()) {
        columns().followBit(column);
        leaveHiddenColumn();
        emit signalVarNo(variableCounter());
    }
}

void MainTableView::cmdHideColumn()
{
    if (isCurrentVariableShown()) {
        columns().setShown(currentVariable(), false);
        leaveHiddenColumn();
        announceColumns();
    }
}

void MainTableView::cmdHideColumns()
{
    if (isReady()) {
        hideVariables(selected().variables());
    }
}

void MainTableView::cmdUnhidecolumns()
{
    if (isReady()) {
        columns().showAll();
        announceColumns();
    }
}

void MainTableView::announceColumns()
{
    emit signalVarNo(variableCounter());
    emit signalVarHideUnhide();
}

void MainTableView::showOnlyVariables(std::span<const int> variables)
{
    if (isReady()) {
        columns().showOnly(variables);
        leaveHiddenColumn();
        announceColumns();
    }
}

void MainTableView::hideVariables(std::span<const int> variables)
{
    if (!isReady()) {
        return;
    }
    for (const int variable : variables) {
        columns().setShown(variable, false);
    }
    leaveHiddenColumn();
    announceColumns();
}

void MainTableView::cmdGotoVariable()
{
    emit signalShowDockVar(currentVariable());
}

void MainTableView::cmdGotoVariable(int variable)
{
    if (!isReady() || variable < 0 || variable >= m_variableTotal) {
        return;
    }
    if (!columns().isShown(variable)) {
        m_host->showMessage(tr("The variable %1 is hidden.").arg(nameOf(variable)));
        return;
    }
    makeCurrent(variable);
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
    if (isReady() && columns().shift(currentVariable(), step) && currentIndex().isValid()) {
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
    if (!isReady() || !selectionModel()->hasSelection()) {
        return;
    }
    const WaitCursor waitCursor;
    const GridSelection selection = selected();
    const std::vector<int> rowsToCopy = selection.rows();
    const std::vector<int> variables = selection.variables();
    const auto cellText = [&](int row, int variable) {
        return selection.contains(row, variable) ? model()->index(row, variable).data().toString()
                                                 : QString();
    };
    QString text = gridcopy::text({rowsToCopy, variables, cellText});
    if (includeNames) {
        QStringList names;
        std::transform(variables.begin(), variables.end(), std::back_inserter(names),
                       [this](int variable) { return nameOf(variable); });
        text.prepend(gridcopy::line(names) + u'\n');
    }
    QGuiApplication::clipboard()->setText(text);
}

void MainTableView::copyColHeader()
{
    QStringList names;
    for (const int variable : selectedOrCurrentVariables()) {
        names << nameOf(variable);
    }
    if (!names.isEmpty()) {
        QGuiApplication::clipboard()->setText(gridcopy::line(names));
    }
}

// Filters

QString MainTableView::libraryFilterText() const
{
    return m_filterCommands ? m_filterCommands->libraryFilterText() : QString();
}

QString MainTableView::libraryFilterProblem() const
{
    return m_filterCommands ? m_filterCommands->libraryFilterProblem() : QString();
}

QString MainTableView::datasetFilterText() const
{
    return m_filterCommands ? m_filterCommands->datasetFilterText() : QString();
}

QString MainTableView::lastCommand() const
{
    return m_filterCommands ? m_filterCommands->lastCommand() : QString();
}

void MainTableView::publishFilters()
{
    emit signalLibraryFilter(libraryFilterText());
    emit signalFilter(datasetFilterText());
}

void MainTableView::showFilters()
{
    applyRowVisibility();
    publishCounters();
    publishFilters();
}

void MainTableView::cmdApplyLf()
{
    run(GridCommand::LibraryFilter);
}

void MainTableView::cmdWhere()
{
    run(GridCommand::FilterAgain);
}

void MainTableView::cmdDfUndo()
{
    run(GridCommand::UndoDatasetFilter);
}

void MainTableView::cmdRunCommand(const QString& commandText)
{
    if (m_filterCommands) {
        m_filterCommands->runText(commandText, Dialect::Command);
    }
}

void MainTableView::runStatement(const QString& statement)
{
    if (m_filterCommands) {
        m_filterCommands->runText(statement, Dialect::FilterText);
    }
}

void MainTableView::replaceDatasetFilter(const QString& condition)
{
    if (m_filterCommands) {
        m_filterCommands->replaceDatasetFilter(condition);
    }
}

void MainTableView::filterByValue(int variable, CompareOp op, const QuickFilter::Value& value)
{
    if (m_filterCommands) {
        m_filterCommands->filterByValue(variable, op, value);
    }
}

void MainTableView::filterByValues(int variable, std::span<const QuickFilter::Value> values)
{
    if (m_filterCommands) {
        m_filterCommands->filterByValues(variable, values);
    }
}

void MainTableView::restoreFilters(const QString& libraryFilterText,
                                   const QString& datasetFilterText)
{
    if (m_filterCommands) {
        m_filterCommands->restore(libraryFilterText, datasetFilterText);
    }
}

// By variables

void MainTableView::cmdAddByVar(const std::string& variable)
{
    if (!isReady()) {
        return;
    }
    const auto found = variablenames::find(*dataset(), QString::fromStdString(variable));
    if (!found) {
        spdlog::warn("Warning: there is no variable named {}", variable);
        return;
    }
    const std::string& name = dataset()->names()[static_cast<std::size_t>(*found)];
    if (std::find(m_byVariables.begin(), m_byVariables.end(), name) == m_byVariables.end()) {
        m_byVariables.push_back(name);
        emit signalAddByVar(QString::fromStdString(name));
    }
}

bool MainTableView::setByVariables(const QString& names)
{
    if (!isReady()) {
        return false;
    }
    QStringList words =
        QString(names).replace(u';', u' ').simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.size() > 1 && words.front().compare(u"by", Qt::CaseInsensitive) == 0) {
        words.removeFirst();
    }
    const bool areVariables = std::all_of(words.begin(), words.end(), [this](const QString& word) {
        return variablenames::find(*dataset(), word).has_value();
    });
    if (areVariables) {
        cmdClearByVar();
        for (const QString& word : words) {
            cmdAddByVar(word.toStdString());
        }
    }
    return areVariables;
}

void MainTableView::addCurrentByVariable()
{
    if (isCurrentVariableShown()) {
        cmdAddByVar(nameOf(currentVariable()).toStdString());
    }
}

void MainTableView::cmdClearByVar()
{
    if (!m_byVariables.empty()) {
        m_byVariables.clear();
        emit signalAddByVar(QString());
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

void MainTableView::showFrequency(std::vector<int> variables, bool frequencyN)
{
    if (variables.empty()) {
        return;
    }
    const WaitCursor waitCursor;
    m_frequencies = frequencyN
        ? frequencies::distinctIds(*dataset(), variables, m_host->uniqueVarName().toStdString())
        : frequencies::plain(*dataset(), variables);
    emit signalSetFrequency(&m_frequencies, std::move(variables), dataset(), frequencyN);
    emit signalShowDockFreq();
}

std::variant<statistics::Table, statistics::Problem> MainTableView::describeSelection() const
{
    const WaitCursor waitCursor;
    std::vector<int> byNumbers;
    for (const std::string& name : m_byVariables) {
        byNumbers.push_back(*variablenames::find(*dataset(), QString::fromStdString(name)));
    }
    return statistics::describe(*dataset(), selected().variables(), byNumbers);
}

void MainTableView::showStatistics()
{
    const auto result = describeSelection();
    if (const auto* problem = std::get_if<statistics::Problem>(&result)) {
        const GridStatistics::Message message = GridStatistics::messageOf(*problem);
        m_host->inform(message.title, message.text);
        return;
    }
    m_statistics.fillTable(std::get<statistics::Table>(result));
    refreshDescDock();
}

void MainTableView::refreshDescDock()
{
    if (m_statistics.table() != nullptr) {
        emit signalShowDockDesc(m_statistics.table());
    }
}

// Keys and menus

void MainTableView::run(GridCommand command)
{
    if (!isReady()) {
        return;
    }
    try {
        if (!runColumnCommand(command) && !runOtherCommand(command)) {
            m_filterCommands->run(command);
        }
    } catch (const std::bad_alloc&) {
        m_host->reportCommandError(tr("There is not enough memory."), QString());
    }
}

bool MainTableView::runColumnCommand(GridCommand command)
{
    switch (command) {
    case GridCommand::HideVariable:
        cmdHideColumn();
        return true;
    case GridCommand::HideSelectedVariables:
        cmdHideColumns();
        return true;
    case GridCommand::UnhideVariables:
        cmdUnhidecolumns();
        return true;
    case GridCommand::ShiftLeft:
        shiftVariableLeft();
        return true;
    case GridCommand::ShiftRight:
        shiftVariableRight();
        return true;
    case GridCommand::GoToVariable:
        cmdGotoVariable();
        return true;
    case GridCommand::LargerFont:
        stepFontSize(1);
        return true;
    case GridCommand::SmallerFont:
        stepFontSize(-1);
        return true;
    default:
        return false;
    }
}

bool MainTableView::runOtherCommand(GridCommand command)
{
    switch (command) {
    case GridCommand::AddByVariable:
        addCurrentByVariable();
        return true;
    case GridCommand::ClearByVariables:
        cmdClearByVar();
        return true;
    case GridCommand::Frequency:
        showFrequency(selectedOrCurrentVariables(), false);
        return true;
    case GridCommand::FrequencyOfSubjects:
        showFrequency(selectedOrCurrentVariables(), true);
        return true;
    case GridCommand::Univariate:
        showStatistics();
        return true;
    case GridCommand::Copy:
        cmdCopy(false);
        return true;
    case GridCommand::CopyWithNames:
        cmdCopy(true);
        return true;
    default:
        return false;
    }
}

void MainTableView::stepFontSize(int step)
{
    const int before = fontSize();
    changeFontSize(step);
    if (fontSize() != before) {
        m_host->fontSizeChanged(fontSize());
    }
}

QString MainTableView::nameOf(int variable) const
{
    return QString::fromStdString(dataset()->names().at(static_cast<std::size_t>(variable)));
}

void MainTableView::showContextMenu(const QPoint& position)
{
    auto* menu = new GridContextMenu(m_host->uniqueVarName(), this);
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
