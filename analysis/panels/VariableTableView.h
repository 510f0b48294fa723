#pragma once

#include "analysis/panels/PanelTable.h"

#include <vector>

class CheckBoxHeader;
class OpenDataset;
class QSortFilterProxyModel;
class VariableTableModel;

/// The list of a dataset's variables, where they are hidden and shown. All signals tell variables
/// by their numbers in the dataset, however the list is sorted.
class VariableTableView : public PanelTable
{
    Q_OBJECT

public:
    /// @param opened  outlives the view; null for an empty list
    explicit VariableTableView(OpenDataset* opened, QWidget* parent = nullptr);

    void setOpened(OpenDataset* opened);

signals:
    /// The user asks for the variable in the grid.
    void signalGotoVar(int variable);
    void signalVarHideUnhide(int variable);
    void signalFrequencyAsked(std::vector<int> variables, bool frequencyN);

public slots:
    /// Selects the row of a variable and brings it into sight.
    void cmdSelectRow(int variable);
    void showContextMenu(const QPoint& position);
    /// Tells that a variable has been hidden or shown.
    void hideUnhideVar(int variable);
    /// Makes the box in the header say whether all, some or no variables are shown.
    void updateHeaderState();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void createHeader();
    void createModel();
    void showOrHideAll(Qt::CheckState state);
    void stepFontSize(int step);
    void goToCurrent();
    [[nodiscard]] int variableOf(const QModelIndex& index) const;
    [[nodiscard]] std::vector<int> selectedVariables() const;

    OpenDataset* m_opened = nullptr;
    VariableTableModel* m_model;
    CheckBoxHeader* m_header;
    QSortFilterProxyModel* m_proxy;
    int m_currentVariable = -1;
};
