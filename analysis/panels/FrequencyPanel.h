#pragma once

#include "analysis/panels/FilterMark.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class FreqTableView;
class QLabel;

/// A list of frequencies with a line below it that sums it up: its rows, the sum, the share of what
/// is selected, and whether the filters are still those that it was counted under.
class FrequencyPanel : public QWidget
{
    Q_OBJECT

public:
    /// @param opened  outlives the panel; may be null, and then there is never a list
    explicit FrequencyPanel(OpenDataset* opened, QWidget* parent = nullptr);

    [[nodiscard]] FreqTableView& table() { return *m_table; }
    /// Whether something has been counted yet.
    [[nodiscard]] bool hasList() const;
    /// Takes the list that the table shows for one that was counted now.
    /// @param frequencyN  whether distinct subjects were to be counted
    void noteCounted(bool frequencyN);

private:
    [[nodiscard]] QStringList figures() const;
    [[nodiscard]] QString selectionText() const;
    [[nodiscard]] QStringList warnings() const;
    void updateFoot();

    OpenDataset* m_opened;
    FreqTableView* m_table;
    QLabel* m_foot;
    FilterMark m_countedUnder;
    QString m_idVariable;  ///< empty where observations were to be counted
    std::optional<std::int64_t> m_subjects;  ///< all of them, where they were counted
};
