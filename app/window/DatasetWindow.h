#pragma once

#include <QDateTime>
#include <QMdiSubWindow>
#include <QString>

#include <memory>

class MainTableView;
class OpenDataset;
class StatDataset;
struct OpenDatasets;

/// Where a dataset was read from.
struct DatasetOrigin
{
    QString filePath;  ///< absolute
    QString fileKey;  ///< of the open-files map: the path, and "::name" for one dataset of several
    QDateTime fileTimestamp;  ///< when the file was last changed, as it was opened
};

/// The sub-window of one open dataset. It owns the dataset, what its user has made of it, and the
/// grid that shows it. The origin is kept in the dynamic properties "filePath", "fileKey" and
/// "fileTimestamp".
class DatasetWindow : public QMdiSubWindow
{
    Q_OBJECT

public:
    /// @param shared  what this dataset shares with the others; outlives the window
    DatasetWindow(std::unique_ptr<StatDataset> dataset, const DatasetOrigin& origin,
                  OpenDatasets& shared);
    ~DatasetWindow() override;

    [[nodiscard]] MainTableView* view() const { return m_view; }
    [[nodiscard]] StatDataset* dataset() const { return m_dataset.get(); }
    [[nodiscard]] QString fileKey() const;
    /// What the user calls the dataset: its name within a file of several, else the file's without
    /// its suffix.
    [[nodiscard]] const QString& datasetName() const { return m_datasetName; }

signals:
    /// The window has agreed to close and is about to be deleted.
    void signalClosed(DatasetWindow* window);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createGrid();
    void dropSystemMenuShortcuts();
    void addCloseKey();

    std::unique_ptr<StatDataset> m_dataset;
    std::unique_ptr<OpenDataset> m_opened;
    QString m_datasetName;
    MainTableView* m_view = nullptr;  ///< owned by this window as its child
};
