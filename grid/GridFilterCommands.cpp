#include "grid/GridFilterCommands.h"

#include "grid/filter/CommandParser.h"
#include "grid/filter/FilterStatement.h"
#include "grid/filter/ParseError.h"
#include "grid/filter/VariableNames.h"
#include "grid/GridHost.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include <new>

namespace {

/// What a result holds; a failure becomes what a failed command throws.
template <typename T>
const T& valueOrThrow(const Result<T>& result)
{
    if (!result) {
        throw ParseError(result.error());
    }
    return result.value();
}

}  // namespace

GridFilterCommands::GridFilterCommands(MainTableView& view, StatDataset& dataset, GridHost& host)
    : m_view(view)
    , m_dataset(dataset)
    , m_host(host)
    , m_filters(dataset)
{ }

GridFilterCommands::~GridFilterCommands()
{
    m_host.libraryFilter().leave(*this);
}

void GridFilterCommands::joinLibraryFilter()
{
    m_host.libraryFilter().join(*this);
}

/// Runs what no caller waits for: no exception may leave an event handler.
template <typename Command>
void GridFilterCommands::attempt(Command command)
{
    m_lastCommand.clear();
    try {
        command();
    } catch (const ParseError& error) {
        m_host.reportCommandError(QString::fromUtf8(error.what()), m_lastCommand);
    } catch (const std::bad_alloc&) {
        m_host.reportCommandError(
            QCoreApplication::translate("GridFilterCommands", "There is not enough memory."),
            m_lastCommand);
    }
}

void GridFilterCommands::runText(const QString& commandText, Dialect dialect)
{
    m_lastCommand = commandText;
    CommandParser(commandText, *this, dialect).run();
}

void GridFilterCommands::run(GridCommand command)
{
    switch (command) {
    case GridCommand::LibraryFilter:
        return setLibraryFilter();
    case GridCommand::ClearLibraryFilter:
        return attempt([this] { clearLibraryFilter(); });
    case GridCommand::FilterIn:
        return attempt([this] { filterBySelectedCells(); });
    case GridCommand::FilterAgain:
        return filterByCurrentCell();
    case GridCommand::FilterNotEqual:
        return filterWith(CompareOp::NotEqual);
    case GridCommand::FilterGreater:
        return filterWith(CompareOp::Greater);
    case GridCommand::FilterLess:
        return filterWith(CompareOp::Less);
    case GridCommand::FilterGreaterOrEqual:
        return filterWith(CompareOp::GreaterOrEqual);
    case GridCommand::FilterLessOrEqual:
        return filterWith(CompareOp::LessOrEqual);
    case GridCommand::FilterContains:
        return attempt([this] { filterByContainedText(); });
    case GridCommand::ClearDatasetFilter:
        return attempt([this] { clearDatasetFilter(); });
    case GridCommand::UndoDatasetFilter:
        return attempt([this] { undoDatasetFilter(); });
    default:
        Q_ASSERT(false);
    }
}

// Quick filters

/// The observation of the current cell, -1 when there is none or its column is hidden.
int GridFilterCommands::currentObservation() const
{
    const QModelIndex current = m_view.currentIndex();
    return current.isValid() && m_view.isCurrentVariableShown()
        ? m_view.tableModel()->observationAt(current.row())
        : -1;
}

void GridFilterCommands::filterWith(CompareOp op)
{
    m_filters.setOp(op);
    filterByCurrentCell();
}

void GridFilterCommands::filterByCurrentCell()
{
    attempt([this] { compareCurrentCell(); });
}

void GridFilterCommands::compareCurrentCell()
{
    const int observation = currentObservation();
    if (observation >= 0) {
        apply(m_filters.comparison(m_view.currentVariable(), observation));
    }
}

void GridFilterCommands::setLibraryFilter()
{
    attempt([this] {
        const auto restore = qScopeGuard([this, op = m_filters.op(), mode = m_filters.mode()] {
            m_filters.setOp(op);
            m_filters.setMode(mode);
        });
        m_filters.setOp(CompareOp::Equal);
        m_filters.setMode(QuickFilterMode::LibraryFilter);
        compareCurrentCell();
    });
}

void GridFilterCommands::filterBySelectedCells()
{
    if (currentObservation() < 0) {
        return;
    }
    const int variable = m_view.currentVariable();
    std::vector<int> observations;
    for (const int row : m_view.selected().rowsOf(variable)) {
        observations.push_back(m_view.tableModel()->observationAt(row));
    }
    if (observations.empty()) {
        observations.push_back(currentObservation());
    }
    apply(m_filters.inList(variable, observations));
}

void GridFilterCommands::filterByContainedText()
{
    const int observation = currentObservation();
    if (observation >= 0) {
        apply(m_filters.containing(m_view.currentVariable(), observation));
    }
}

void GridFilterCommands::filterByValue(int variable, CompareOp op, const QuickFilter::Value& value)
{
    attempt([&] { apply(QuickFilter(m_dataset, variable).compare(op, value)); });
}

void GridFilterCommands::filterByValues(int variable, std::span<const QuickFilter::Value> values)
{
    attempt([&] { apply(QuickFilter(m_dataset, variable).isIn(values)); });
}

/// Applies a condition that was made from values, on the path that the mode says.
void GridFilterCommands::apply(const Result<QString>& condition)
{
    const QString& text = valueOrThrow(condition);
    if (m_filters.mode() == QuickFilterMode::LibraryFilter) {
        m_lastCommand = QStringLiteral("where ") + text;
        applyLibraryFilter(text);
    } else {
        m_lastCommand = QStringLiteral("if ") + text;
        addDatasetFilter(text);
    }
}

// Dataset filter

void GridFilterCommands::addDatasetFilter(const QString& condition)
{
    const WaitCursor waitCursor;
    valueOrThrow(m_filters.state().addDatasetFilterStep(condition));
    m_view.showFilters();
}

void GridFilterCommands::clearDatasetFilter()
{
    const WaitCursor waitCursor;
    m_filters.state().clearDatasetFilter();
    m_view.showFilters();
}

void GridFilterCommands::undoDatasetFilter()
{
    const WaitCursor waitCursor;
    if (m_filters.state().undoDatasetFilter()) {
        m_view.showFilters();
    }
}

void GridFilterCommands::replaceDatasetFilter(const QString& condition)
{
    const WaitCursor waitCursor;
    valueOrThrow(m_filters.state().replaceDatasetFilter(condition));
    m_view.showFilters();
}

QString GridFilterCommands::datasetFilterText() const
{
    return m_filters.state().datasetFilterText();
}

void GridFilterCommands::restore(const QString& libraryText, const QString& datasetText)
{
    const WaitCursor waitCursor;
    if (!libraryText.trimmed().isEmpty()) {
        // Looked at first, so that neither filter changes where one of them is wrong.
        valueOrThrow(filterstatement::condition(libraryText, u"where"));
    }
    valueOrThrow(m_filters.state().restore(ownLibraryFilterText(), datasetText));
    valueOrThrow(m_host.libraryFilter().restore(libraryText));
    m_view.showFilters();
}

// Library filter

void GridFilterCommands::applyLibraryFilter(const QString& condition)
{
    const WaitCursor waitCursor;
    valueOrThrow(m_host.libraryFilter().apply(condition, *this));
}

void GridFilterCommands::clearLibraryFilter()
{
    const WaitCursor waitCursor;
    m_host.libraryFilter().clear();
}

Result<std::size_t> GridFilterCommands::takeLibraryFilter(const QString& condition)
{
    return m_filters.state().applyLibraryFilter(condition);
}

void GridFilterCommands::dropLibraryFilter()
{
    m_filters.state().clearLibraryFilter();
}

QString GridFilterCommands::ownLibraryFilterText() const
{
    return m_filters.state().libraryFilterText();
}

QString GridFilterCommands::libraryFilterText() const
{
    const QString& shared = m_host.libraryFilter().text();
    return shared.isEmpty() ? ownLibraryFilterText() : shared;
}

void GridFilterCommands::showLibraryFilter(const QString& problem)
{
    m_libraryFilterProblem = problem;
    m_view.showFilters();
}

// Other typed commands

std::vector<int> GridFilterCommands::variablesNamed(const QStringList& names) const
{
    std::vector<int> variables;
    for (const QString& name : names) {
        const std::optional<int> variable = variablenames::find(m_dataset, name);
        if (!variable) {
            throw ParseError("There is no variable named " + name.toStdString());
        }
        variables.push_back(*variable);
    }
    return variables;
}

void GridFilterCommands::keepVariables(const QStringList& names)
{
    m_view.showOnlyVariables(variablesNamed(names));
}

void GridFilterCommands::dropVariables(const QStringList& names)
{
    m_view.hideVariables(variablesNamed(names));
}

void GridFilterCommands::frequencyTable(const QStringList& names, bool frequencyN)
{
    m_view.showFrequency(variablesNamed(names), frequencyN);
}
