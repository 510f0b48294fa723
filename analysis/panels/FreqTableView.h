#pragma once

#include "analysis/Frequencies.h"
#include "analysis/panels/PanelTable.h"
#include "data/Result.h"
#include "grid/filter/CompareOp.h"
#include "grid/filter/QuickFilter.h"
#include "grid/opened/CommandFailure.h"

#include <functional>
#include <optional>
#include <vector>

class CountBarDelegate;
class FreqSortProxyModel;
class FreqTableModel;
class OpenDataset;
class QMenu;
class StatDataset;

/// A list of frequencies, whose values filter the dataset they were counted in.
class FreqTableView : public PanelTable
{
    Q_OBJECT

public:
    /// What a filter acts on: the value of a variable in one row of the list.
    struct Cell
    {
        int row = 0;  ///< of the model, however the list is sorted
        int column = 0;
        int variable = 0;
    };
    using Act = std::function<CommandOutcome()>;

    /// @param opened  outlives the view; may be null, and then the list stays empty
    explicit FreqTableView(OpenDataset* opened, QWidget* parent = nullptr);

    [[nodiscard]] const FreqTableModel& list() const { return *m_model; }
    /// The rows of the model that have a selected cell.
    [[nodiscard]] std::vector<int> selectedRows() const;

    // What the keys do

    void filterBy(CompareOp op);
    void filterByLibrary();
    /// Keeps the values of all selected rows.
    void filterByValues();

signals:
    /// Something that changes what the filters select, to be done by whoever can show that it takes
    /// a while and what goes wrong.
    void signalFilter(std::function<CommandOutcome()> apply);
    /// Something told in passing.
    void signalMessage(QString text);
    void signalSelectionChanged();

public slots:
    /// Shows another list, in its own order. @see FreqTableModel::updateSetFrequency
    void updateSetFrequency(std::vector<WordsAndCounts>* vectorFrequency,
                            std::vector<int> variableNo, StatDataset* dataset, bool m_bFrequencyN);
    void showContextMenu(const QPoint& position);

protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void installKeys();
    void addKeys(const QList<int>& keys, void (FreqTableView::*act)());
    template <CompareOp op>
    void filter();
    void clearDatasetFilter();
    void clearLibraryFilter();
    void undoDatasetFilter();
    void addFilters(QMenu& menu);
    void addFilter(QMenu& menu, const Result<QString>& condition, const char* key,
                   void (FreqTableView::*act)());
    [[nodiscard]] std::optional<Cell> currentCell() const;
    [[nodiscard]] QuickFilter::Value valueOf(const Cell& cell) const;
    [[nodiscard]] std::vector<QuickFilter::Value> selectedValues(int column) const;
    void filterByCell(const std::function<CommandOutcome(const Cell&)>& filter);
    void apply(Act act);

    OpenDataset* m_opened;
    FreqTableModel* m_model;
    FreqSortProxyModel* m_proxy;
    CountBarDelegate* m_bars;
};
