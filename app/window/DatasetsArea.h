#pragma once

#include <QWidget>

class DatasetWindow;
class QMdiArea;
class QMdiSubWindow;
class QStackedLayout;

/// The middle of the main window: the open datasets as tabs, or, while there are none, what says
/// how to open one.
class DatasetsArea : public QWidget
{
    Q_OBJECT

public:
    explicit DatasetsArea(QWidget* parent = nullptr);

    [[nodiscard]] QMdiArea& mdiArea() const { return *m_mdiArea; }
    /// Takes over what is shown while no dataset is open.
    void setEmptyState(QWidget* widget);
    void showDatasets(bool areOpen);
    /// The dataset in front, or null.
    [[nodiscard]] DatasetWindow* currentDataset() const;
    /// The comparison in front, or nullptr where a dataset, or nothing, is.
    [[nodiscard]] QMdiSubWindow* currentComparison() const;
    void closeCurrent();

    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// Another tab has been chosen.
    void signalTabSwitched();

private:
    void createMdiArea();
    void keepOneActive();

    QStackedLayout* m_pages;
    QMdiArea* m_mdiArea;
};
