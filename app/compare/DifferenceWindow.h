#pragma once

#include "analysis/comparison/Comparison.h"
#include "analysis/comparison/DifferenceList.h"

#include <QWidget>

#include <memory>
#include <optional>

class DifferenceView;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QToolButton;

/// The differences of a comparison with what is compared above them, what is shown of them, and the
/// ways from one to the next.
class DifferenceWindow : public QWidget
{
    Q_OBJECT

public:
    /// @param comparison  its datasets outlive the window
    explicit DifferenceWindow(std::shared_ptr<const comparison::Comparison> comparison,
                              QWidget* parent = nullptr);

    [[nodiscard]] DifferenceView& view() const { return *m_view; }
    /// Tells where the datasets come from in the tips of their names.
    void setFiles(const QString& base, const QString& compare);
    /// Writes all differences, whatever is shown: tab-separated unless the path ends with ".csv".
    /// @return  what went wrong; nothing where nothing did
    [[nodiscard]] std::optional<QString> save(const QString& path) const;

signals:
    /// The user wants to see observations and variables, from 0, in their datasets; -1 where a
    /// side has none.
    void signalRowChosen(int baseObservation, int compareObservation, int baseVariable,
                         int compareVariable);
    /// The user wants the differences in a file.
    void signalSaveRequested();
    /// Whether the grids of the two datasets are to follow each other.
    void signalTogetherChanged(bool areTogether);

private:
    [[nodiscard]] QBoxLayout* createSummary();
    [[nodiscard]] QBoxLayout* createBar();
    QToolButton* addWay(QBoxLayout& bar, const QString& text, const QString& tip,
                        Qt::ArrowType arrow, const QList<QKeySequence>& keys,
                        void (DifferenceView::*go)());
    void applyFilter();
    void showPlace();
    void showWrapping(bool forwards);

    std::shared_ptr<const comparison::Comparison> m_comparison;
    DifferenceView* m_view;
    QLabel* m_base = nullptr;
    QLabel* m_compare = nullptr;
    QCheckBox* m_onlyVariables;
    QCheckBox* m_onlyObservations;
    QCheckBox* m_percent;
    QLabel* m_place;
    QLabel* m_wrapping;
    QLabel* m_hidden;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
};
