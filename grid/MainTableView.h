#pragma once

#include "analysis/Frequencies.h"
#include "grid/CellFilters.h"
#include "grid/GridCommands.h"
#include "grid/GridPanels.h"
#include "grid/GridTable.h"
#include "grid/opened/OpenDataset.h"

#include <QString>
#include <QTableWidget>  // whole, so that its signal can be recorded

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// The grid of one open dataset: selection, keys, menus and clipboard. What is in force for the
/// dataset is told by its OpenDataset; the grid tells the rest of the window by its signals.
class MainTableView : public GridTable
{
    Q_OBJECT

public:
    /// @param opened  outlives the view; without one the counters read "NA"
    explicit MainTableView(OpenDataset* opened, QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    /// The command that was typed last, whether it could be read or not.
    [[nodiscard]] const QString& lastCommand() const { return m_lastCommand; }
    /// The side views, which belong to this view wherever they are shown.
    [[nodiscard]] const GridPanels& panels() const { return m_panels; }

    /// Finds the corner button and lets its click select all cells in dataset order.
    void connectCornerButton();
    /// Sends the counters of rows and variables, as after every change of filters or columns.
    void publishCounters();
    void publishFilters();

    [[nodiscard]] CellFilters& cellFilters() { return m_cellFilters; }
    /// Sets what the next quick filters compare by.
    void setFilterOperator(CompareOp op);
    /// Changes what filters select under the wait cursor; what goes wrong is told by a signal.
    void filter(const std::function<CommandOutcome()>& apply);
    /// Runs a command as its key does.
    void run(GridCommand command);
    void addCurrentByVariable();
    /// Counts the values of the selected variables, or their distinct subjects, and has them shown.
    void showFrequencyOfSelected(bool frequencyN);
    void showStatistics();

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
    /// A command failed that no caller waits for, such as one run by a key.
    void signalCommandFailed(CommandFailure failure);
    /// Something that the user has to read.
    void signalInform(QString title, QString text);
    /// Something told in passing.
    void signalMessage(QString text);
    /// Asks for the window that shows the whole of the current cell.
    void signalShowDockCell();
    /// Asks for the window that shows the whole of the current row.
    void signalShowDockRow();
    /// Quick filters compare by another operator.
    void signalFilterOperator();

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
    /// Goes to an observation's row, unless a filter hides it.
    void cmdGotoObservation(int observation);
    void shiftVariableLeft();
    void shiftVariableRight();
    void cmdSelectCol();
    /// Copies the selected cells.
    void cmdCopy(bool includeNames);
    void cmdCopyStoredValues();
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

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void connectHeaders();
    void followOpenDataset();
    void onCornerClicked();
    void showHeaderMenu(const QPoint& position);
    void showSort();
    void showFilters();
    void showVariables();
    void tellVariables();
    void copy(QString (*textOf)(const GridTable&));
    void report(const CommandOutcome& outcome);
    void shiftVariable(int step);
    [[nodiscard]] std::vector<int> selectedOrCurrentVariables() const;

    QString m_lastCommand;
    CellFilters m_cellFilters;
    GridPanels m_panels;
};
