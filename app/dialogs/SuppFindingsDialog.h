#pragma once

#include "analysis/supplement/SupplementJoin.h"

#include <QDialog>

class PanelTable;
class QModelIndex;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;

/// The rows of SUPP-- datasets that could not be joined, or not alone. It keeps them, so that the
/// datasets may be closed meanwhile.
class SuppFindingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param name  what the user calls the joined dataset
    SuppFindingsDialog(const supplement::Joined& joined, const QString& name,
                       QWidget* parent = nullptr);

signals:
    /// The user wants to see a row of a SUPP-- dataset.
    void signalRowRequested(std::size_t supplement, int row);
    /// The user wants to see an observation of the joined dataset.
    void signalObservationRequested(int observation);

private:
    void fill(const supplement::Joined& joined);
    void createTable();
    [[nodiscard]] QWidget* createButtons();
    /// The finding of the current row; null without one.
    [[nodiscard]] const supplement::Finding* current() const;
    void requestRow();
    void requestOther();
    void requestObservation();
    void showPossible();

    std::vector<supplement::Finding> m_findings;
    QStandardItemModel* m_model;
    QSortFilterProxyModel* m_sorted;
    PanelTable* m_table = nullptr;
    QPushButton* m_row = nullptr;
    QPushButton* m_other = nullptr;
    QPushButton* m_observation = nullptr;
};
