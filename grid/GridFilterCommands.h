#pragma once

#include "grid/filter/CommandTarget.h"
#include "grid/filter/Lexer.h"
#include "grid/filter/QuickFilter.h"
#include "grid/GridCommand.h"
#include "grid/GridFilters.h"
#include "grid/LibraryFilter.h"

#include <QString>

#include <span>
#include <vector>

class GridHost;
class MainTableView;

/// What a grid does with its filters: quick filters from cells, typed commands, its part in the
/// library filter. Every change ends with the grid showing the rows, counters and texts anew.
class GridFilterCommands final : private CommandTarget, private LibraryFilter::Grid
{
public:
    /// All outlive this object.
    GridFilterCommands(MainTableView& view, StatDataset& dataset, GridHost& host);
    ~GridFilterCommands();
    GridFilterCommands(const GridFilterCommands&) = delete;
    GridFilterCommands& operator=(const GridFilterCommands&) = delete;

    /// Takes part in the library filter from now on; one in force filters the grid at once.
    void joinLibraryFilter();

    /// Runs a command. Throws ParseError.
    void runText(const QString& commandText, Dialect dialect);
    /// Runs one of the filter commands that keys and menus have; what fails is told by the host.
    void run(GridCommand command);
    /// Filters by the current cell in the mode and with the operator in force.
    void filterByCurrentCell();
    /// The same, once, as a library filter for equality.
    void setLibraryFilter();
    /// Filters by a value that another view shows.
    void filterByValue(int variable, CompareOp op, const QuickFilter::Value& value);
    void filterByValues(int variable, std::span<const QuickFilter::Value> values);
    void undoDatasetFilter();
    /// Puts a condition in the place of the dataset filter. Throws ParseError.
    void replaceDatasetFilter(const QString& condition);
    /// Sets the filters that texts in statement form say; empty for none. A library filter in force
    /// stays. Throws ParseError.
    void restore(const QString& libraryText, const QString& datasetText);

    [[nodiscard]] QString libraryFilterText() const;
    [[nodiscard]] QString datasetFilterText() const;
    /// Why the library filter in force does not filter this dataset; empty if it does.
    [[nodiscard]] const QString& libraryFilterProblem() const { return m_libraryFilterProblem; }
    [[nodiscard]] const QString& lastCommand() const { return m_lastCommand; }

private:
    // CommandTarget
    void clearLibraryFilter() override;
    void clearDatasetFilter() override;
    void keepVariables(const QStringList& names) override;
    void dropVariables(const QStringList& names) override;
    void frequencyTable(const QStringList& names, bool frequencyN) override;
    void applyLibraryFilter(const QString& condition) override;
    void addDatasetFilter(const QString& condition) override;

    // LibraryFilter::Grid
    Result<std::size_t> takeLibraryFilter(const QString& condition) override;
    void dropLibraryFilter() override;
    [[nodiscard]] QString ownLibraryFilterText() const override;
    void showLibraryFilter(const QString& problem) override;

    template <typename Command>
    void attempt(Command command);
    void filterWith(CompareOp op);
    void compareCurrentCell();
    void filterBySelectedCells();
    void filterByContainedText();
    void apply(const Result<QString>& condition);
    [[nodiscard]] int currentObservation() const;
    [[nodiscard]] std::vector<int> variablesNamed(const QStringList& names) const;

    MainTableView& m_view;
    StatDataset& m_dataset;
    GridHost& m_host;
    GridFilters m_filters;
    QString m_libraryFilterProblem;
    QString m_lastCommand;
};
