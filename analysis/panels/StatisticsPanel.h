#pragma once

#include "analysis/panels/FilterMark.h"
#include "analysis/Statistics.h"

#include <QWidget>

#include <string>
#include <vector>

class DistributionChart;
class QBoxLayout;
class QLabel;
class QTableWidget;

/// The statistics that were made last: the table, a drawing of the values beside it, and a line
/// when the filters or the BY list have changed since.
class StatisticsPanel : public QWidget
{
    Q_OBJECT

public:
    /// A message for the user.
    struct Message
    {
        QString title;
        QString text;
    };

    /// @param opened  outlives the panel; may be null, and then there is never a result
    explicit StatisticsPanel(OpenDataset* opened, QWidget* parent = nullptr);

    /// @param variable  the one that they describe
    void showResult(const statistics::Table& contents, int variable);
    /// What the user is told when there are no statistics.
    [[nodiscard]] static Message messageOf(statistics::Problem problem);

    /// The table; null before the first result.
    [[nodiscard]] QTableWidget* table() const { return m_table; }

signals:
    /// The user wants to go back to the grid.
    void signalLeft();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createContents();
    void fillTable(const statistics::Table& contents);
    void draw(const statistics::Table& contents, int variable);
    void arrange();
    void updateFoot();

    OpenDataset* m_opened;
    QBoxLayout* m_results = nullptr;
    QTableWidget* m_table = nullptr;
    DistributionChart* m_chart = nullptr;
    QLabel* m_foot = nullptr;
    FilterMark m_madeUnder;
    std::vector<std::string> m_madeBy;
};
