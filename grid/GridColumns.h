#pragma once

class OpenDataset;
class QTableView;

/// Lets the columns of a grid stand and be hidden as its open dataset says, and the dataset know
/// when the user has moved them. Variables are the header's logical sections.
class GridColumns
{
public:
    /// Both outlive this object. The view has its model already.
    GridColumns(QTableView& view, OpenDataset& opened);

    /// Hides and shows columns as the dataset's bits say, and tells whether any has changed.
    bool followBits();
    bool followBit(int variable);
    /// Brings the columns into the dataset's order.
    void followOrder();
    /// Takes an order over that the user has given the columns.
    void keepOrder();

private:
    QTableView& m_view;
    OpenDataset& m_opened;
    bool m_isMoving = false;  ///< the columns follow, and what they tell is not the user's doing
};
