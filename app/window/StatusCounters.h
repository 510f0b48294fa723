#pragma once

#include <QCoreApplication>

class QLabel;
class QStatusBar;
class QString;

/// The labels of the status bar that tell about the active grid: on the left its current cell.
class StatusCounters
{
    Q_DECLARE_TR_FUNCTIONS(StatusCounters)

public:
    /// Adds the labels to the status bar, which owns them and outlives the counters.
    explicit StatusCounters(QStatusBar* statusBar);

    void setCell(const QString& summary);
    void setRows(const QString& text);
    void setVariables(const QString& text);
    /// @param names  as they can be typed; empty for none
    void setByVariables(const QString& names);
    /// @param filter   empty when none is in force
    /// @param problem  why it does not filter the active dataset; empty if it does
    void setLibraryFilter(const QString& filter, const QString& problem);
    void setDatasetFilter(const QString& filter);
    /// What the labels say when the last grid has closed.
    void showNothingOpen();

private:
    QLabel* m_cell;
    QLabel* m_rows;
    QLabel* m_variables;
    QLabel* m_by;
    QLabel* m_libraryFilter;
    QLabel* m_datasetFilter;
};
