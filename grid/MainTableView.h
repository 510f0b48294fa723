#pragma once

#include "analysis/Frequencies.h"
#include "analysis/SortRanks.h"
#include "grid/filter/CompareOp.h"
#include "grid/filter/QuickFilter.h"
#include "grid/GridCommand.h"
#include "grid/GridStatistics.h"
#include "grid/GridTable.h"

#include <QString>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class GridFilterCommands;
class GridHost;
class QTableWidget;
class StandaloneGridHost;

/// The grid of one dataset with its commands: by keys, by its context menu and typed. It tells the
/// rest of the window what happens by its signals and asks its host for what it cannot know.
class MainTableView : public GridTable
{
    Q_OBJECT

public:
    /// @param dataset  outlives the view; without one the counters read "NA"
    /// @param host     outlives the view; without one the view has a library filter of its own
    explicit MainTableView(StatDataset* dataset, GridHost* host = nullptr,
                           QWidget* parent = nullptr);
    ~MainTableView() override;

    void setModel(QAbstractItemModel* model) override;

    /// The keys of the current sort, in the order in which they decide; none in dataset order.
    [[nodiscard]] const SortKeys& sortKeys() const { return m_sortKeys; }
    [[nodiscard]] const std::vector<std::string>& byVariables() const { return m_byVariables; }
    /// The library filter in force, "where a = 1", also where it cannot filter this dataset.
    [[nodiscard]] QString libraryFilterText() const;
    /// Why the library filter in force does not filter this dataset; empty if it does.
    [[nodiscard]] QString libraryFilterProblem() const;
    /// "if a = 1 and b = 2".
    [[nodiscard]] QString datasetFilterText() const;
    /// The command that was run last, whether it could be read or not.
    [[nodiscard]] QString lastCommand() const;

    /// Finds the corner button and lets its click select all cells in dataset order.
    void connectCornerButton();
    /// Sends the counters of rows and variables, as after every change of filters or columns.
    void publishCounters();
    void publishFilters();
    /// Shows what the filter masks select now and publishes counters and texts; every change of a
    /// filter ends here.
    void showFilters();
    void showOnlyVariables(std::span<const int> variables);
    void hideVariables(std::span<const int> variables);
    /// Counts the values of the variables, or their distinct subjects, and has them shown.
    void showFrequency(std::vector<int> variables, bool frequencyN);
    /// Runs a command as its key does; what goes wrong is told by the host.
    void run(GridCommand command);

    /// Filters by a value that another view shows, as a quick filter on it would.
    void filterByValue(int variable, CompareOp op, const QuickFilter::Value& value);
    void filterByValues(int variable, std::span<const QuickFilter::Value> values);
    /// Runs a statement of a program, which is a command whose numbers may have signs and
    /// exponents. Throws ParseError.
    void runStatement(const QString& statement);
    /// Puts a condition in the place of the dataset filter, which an undo brings back. Throws
    /// ParseError.
    void replaceDatasetFilter(const QString& condition);
    /// Makes the named variables the BY list; an empty text clears it.
    /// @param names  separated by blanks, "by" in front and a semicolon behind being allowed
    /// @return       whether all are variables of the dataset; the list stays as it is otherwise
    bool setByVariables(const QString& names);
    /// The statistics made last, owned by this view wherever they are shown; null before any.
    [[nodiscard]] QTableWidget* statisticsTable() const { return m_statistics.table(); }
    /// Sets the filters that texts say, as libraryFilterText() and datasetFilterText() gave them;
    /// empty for none. A library filter in force stays. Throws ParseError.
    void restoreFilters(const QString& libraryFilterText, const QString& datasetFilterText);

signals:
    void signalVarNo(QString label);
    void signalObsNo(QString label);
    void signalLibraryFilter(QString text);
    void signalFilter(QString text);
    void signalSetFrequency(std::vector<WordsAndCounts>* vectorFrequency,
                            std::vector<int> variableNo, StatDataset* pDoc, bool m_bFrequencyN);
    void signalVarHideUnhide();
    void signalSort(std::vector<std::pair<int, Qt::SortOrder>> sortColumns);
    void signalShowDockFreq();
    void signalShowDockDesc(QTableWidget* tableWidget);
    void signalShowDockVar(int variable);
    void signalResetSort();
    /// Sent with an empty name when the list has been cleared.
    void signalAddByVar(QString varName);

public slots:
    /// Hides or shows a column as the dataset's bit says, which someone else has changed.
    void cmdHideUnhideColumn(int column);
    void cmdHideColumn();
    /// Brings columns, rows, counters and texts up to date with the dataset's bits.
    void updateAll();
    void cmdHideColumns();
    void cmdUnhidecolumns();
    /// Shows the current variable in the Variables window.
    void cmdGotoVariable();
    /// Goes to a variable's column, unless it is hidden.
    void cmdGotoVariable(int variable);
    void shiftVariableLeft();
    void shiftVariableRight();
    void cmdSelectCol();
    /// Copies the selected cells.
    void cmdCopy(bool includeNames);
    /// Copies the names of the selected variables.
    void copyColHeader();
    /// Sets the library filter by the current cell.
    void cmdApplyLf();
    /// Sets a quick filter by the current cell, in the mode and with the operator in force.
    void cmdWhere();
    void cmdDfUndo();
    /// Runs a typed command. Throws ParseError, so it is to be called and not connected.
    void cmdRunCommand(const QString& commandText);
    void cmdAddByVar(const std::string& variable);
    void cmdClearByVar();
    /// Shows the statistics made last once more.
    void refreshDescDock();
    void showContextMenu(const QPoint& position);
    /// Sorts by the clicked column alone, or the other way round if it is sorted by already.
    void onHeaderClicked(int logicalIndex);

private:
    void connectHeaders();
    void onCornerClicked();
    void showHeaderMenu(const QPoint& position);
    template <typename EmitSort>
    void resort(EmitSort emitSort);
    bool runColumnCommand(GridCommand command);
    bool runOtherCommand(GridCommand command);
    void announceColumns();
    void shiftVariable(int step);
    void stepFontSize(int step);
    void addCurrentByVariable();
    [[nodiscard]] std::variant<statistics::Table, statistics::Problem> describeSelection() const;
    void showStatistics();
    [[nodiscard]] QString nameOf(int variable) const;
    [[nodiscard]] std::vector<int> selectedOrCurrentVariables() const;
    [[nodiscard]] QString rowCounter() const;
    [[nodiscard]] QString variableCounter() const;

    std::unique_ptr<StandaloneGridHost> m_ownHost;  ///< null where another one was given
    GridHost* m_host;
    int m_rowTotal = 0;
    int m_variableTotal = 0;
    std::unique_ptr<GridFilterCommands> m_filterCommands;  ///< once there is a model
    std::vector<std::string> m_byVariables;
    SortKeys m_sortKeys;
    std::vector<WordsAndCounts> m_frequencies;
    GridStatistics m_statistics;
};
