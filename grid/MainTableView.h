#pragma once

#include "analysis/SortRanks.h"
#include "grid/RowVisibility.h"

#include <QString>
#include <QTableView>

#include <utility>
#include <vector>

class MainTableModel;
class QTableWidget;
class StatDataset;
struct WordsAndCounts;

/// The grid of one dataset: shows the rows that the dataset's two filter masks select and sorts on
/// a click on a header. It knows the rest of the window only by the signals that it sends.
class MainTableView : public QTableView
{
    Q_OBJECT

public:
    /// @param dataset     outlives the view; without one the counters read "NA"
    /// @param mainWindow  not owned, the parent of what the view asks and tells
    explicit MainTableView(StatDataset* dataset, QWidget* mainWindow, QWidget* parent = nullptr);

    /// Takes the grid's model, once; one that is a MainTableModel over this dataset is sorted by
    /// the view and has its rows hidden.
    void setModel(QAbstractItemModel* model) override;
    [[nodiscard]] MainTableModel* tableModel() const { return m_model; }
    [[nodiscard]] StatDataset* dataset() const { return m_dataset; }

    /// The keys of the current sort, in the order in which they decide; none in dataset order.
    [[nodiscard]] const SortKeys& sortKeys() const { return m_sortKeys; }
    /// The variable of the current cell, -1 before there was one.
    [[nodiscard]] int currentVariable() const { return m_currentVariable; }
    [[nodiscard]] int shownRowCount() const;

    /// Finds the corner button and lets its click select all cells in dataset order.
    void connectCornerButton();
    /// Makes each column as wide as its contents, within reason. Measures a sample of the rows.
    void fitColumns();
    /// Shows exactly the rows that the dataset's filter masks select. To be called after every
    /// change of a mask; a row whose state does not change costs nothing.
    void applyRowVisibility();
    /// Sends the counters of rows and variables, as after every change of filters or columns.
    void publishCounters();

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
    void signalAddByVar(QString varName);

public slots:
    /// Brings rows and counters up to date with the dataset's masks and variables.
    void updateAll();
    /// Sorts by the clicked column alone, or the other way round if it is sorted by already.
    void onHeaderClicked(int logicalIndex);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void setUpHeaders();
    void onCornerClicked();
    template <typename EmitSort>
    void resort(EmitSort emitSort);
    void showRows();
    [[nodiscard]] bool hasSelectedAllRows() const;
    [[nodiscard]] QString rowCounter() const;
    [[nodiscard]] QString variableCounter() const;

    StatDataset* m_dataset;
    QWidget* m_mainWindow;
    MainTableModel* m_model = nullptr;  ///< the view's model when it is a grid model
    int m_currentVariable = -1;
    int m_rowTotal = 0;
    int m_variableTotal = 0;
    SortKeys m_sortKeys;
    RowVisibility m_rows;
};
