#pragma once

#include "analysis/supplement/SupplementJoin.h"
#include "app/open/SuppFiles.h"

#include <QDateTime>
#include <QMdiSubWindow>
#include <QString>

#include <memory>
#include <optional>

class MainTableView;
class NoticeBar;
class OpenDataset;
class StatDataset;
struct OpenDatasets;

/// Where a dataset was read from.
struct DatasetOrigin
{
    QString filePath;  ///< absolute
    QString fileKey;  ///< of the open-files map: the path, and "::name" for one dataset of several
    QDateTime fileTimestamp;  ///< when the file was last changed, as it was opened
    qint64 fileSize = 0;  ///< bytes, as it was opened
    /// The SUPP-- datasets that it is joined with; they follow in the key, " + " before each.
    QList<JoinedFile> supplements{};

    /// The name of one dataset within a file of several; empty for a file's only one.
    [[nodiscard]] QString member() const;
    /// What follows in the key for the SUPP-- datasets.
    [[nodiscard]] QString joinKey() const;
    /// Whether all files are what they were when they were read.
    [[nodiscard]] bool isUnchanged() const;
    /// Whether all files are there.
    [[nodiscard]] bool exists() const;
};

/// The sub-window of one open dataset. It owns the dataset, what its user has made of it, and the
/// grid that shows it. The origin is kept in the dynamic properties "filePath", "fileKey" and
/// "fileTimestamp".
class DatasetWindow : public QMdiSubWindow
{
    Q_OBJECT

public:
    /// @param shared  what this dataset shares with the others; outlives the window
    DatasetWindow(std::shared_ptr<StatDataset> dataset, const DatasetOrigin& origin,
                  OpenDatasets& shared);
    /// Shows what came of a join.
    DatasetWindow(supplement::Joined joined, const DatasetOrigin& origin, OpenDatasets& shared);
    ~DatasetWindow() override;

    [[nodiscard]] MainTableView* view() const { return m_view; }
    [[nodiscard]] StatDataset* dataset() const { return m_dataset.get(); }
    /// For those who read it longer than this window lives.
    [[nodiscard]] std::shared_ptr<StatDataset> sharedDataset() const { return m_dataset; }
    [[nodiscard]] QString fileKey() const { return m_origin.fileKey; }
    [[nodiscard]] const DatasetOrigin& origin() const { return m_origin; }
    /// What the user calls the dataset: the name that it has itself, else the file's without its
    /// suffix.
    [[nodiscard]] const QString& datasetName() const { return m_datasetName; }
    /// What the join found that the dataset comes from, without the dataset; null where it comes
    /// from a file.
    [[nodiscard]] const supplement::Joined* join() const { return m_join ? &*m_join : nullptr; }
    /// The path of the file, with the dataset's name behind it for one of several.
    [[nodiscard]] QString path() const;
    /// Where the dataset comes from and what it is about, as its tab tells it.
    [[nodiscard]] QString tip() const;
    /// What the main window is called while this dataset is in front.
    [[nodiscard]] QString mainTitle() const;

    /// Names the folder in the title, which tells this dataset from others of its name.
    /// @param place  empty where there are none
    void setPlace(const QString& place);
    /// Compares the file with what it was when it was read, and says what has become of it.
    void lookAtFile();

signals:
    /// The dataset is to be read anew.
    void signalReloadRequested(DatasetWindow* window);
    /// What the join could not join is to be listed.
    void signalFindingsRequested(DatasetWindow* window);
    /// The window has agreed to close and is about to be deleted.
    void signalClosed(DatasetWindow* window);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createGrid();
    void createNotices();
    void addJoinNotice();
    [[nodiscard]] QString ownTitle() const;
    void showTitle();
    void dropSystemMenuShortcuts();
    void addCloseKey();

    std::shared_ptr<StatDataset> m_dataset;
    std::unique_ptr<OpenDataset> m_opened;
    DatasetOrigin m_origin;
    std::optional<supplement::Joined> m_join;
    QString m_datasetName;
    QString m_place;
    QString m_fileState;  ///< what has become of the file since; empty for nothing
    MainTableView* m_view = nullptr;  ///< owned by this window as its child
    NoticeBar* m_fileNotice = nullptr;
};
