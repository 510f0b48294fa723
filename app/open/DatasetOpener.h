#pragma once

#include "app/open/FileWatch.h"
#include "app/open/OpenFilesMap.h"
#include "app/open/SuppFiles.h"
#include "data/readers/FileKinds.h"
#include "grid/opened/ViewState.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>

class DatasetWindow;
class QMainWindow;
class QMdiArea;
class Settings;
class UserPrompts;
struct DatasetOrigin;
struct OpenDatasets;

/// Reads a file, or says why it cannot; openDataset, or what stands in for it in a test.
using DatasetLoader = std::function<Result<OpenedDataset>(const QString&, const OpenOptions&)>;

/// Opens dataset files into sub-windows and knows which are open.
class DatasetOpener : public QObject
{
    Q_OBJECT

public:
    /// All but the loader outlive the opener.
    struct Surroundings
    {
        QMainWindow& window;
        QMdiArea& area;
        OpenDatasets& datasets;
        UserPrompts& prompts;
        Settings& settings;
        DatasetLoader load;
    };

    explicit DatasetOpener(Surroundings surroundings, QObject* parent = nullptr);

    /// Lets the user choose files of a kind and opens them one by one.
    void chooseAndOpen(FileKind kind);
    /// Opens one file; of one that holds several datasets those that the user chooses. What is open
    /// already is only activated, unless the user wants it reloaded.
    /// @return  whether the file, or at least one of the chosen datasets, is open now
    bool open(const QString& path);
    /// Opens one dataset of a file that holds several.
    bool openMember(const QString& path, const QString& name);
    /// Opens a dataset joined with its SUPP-- datasets.
    bool openJoined(const QString& path, const QString& name, const QList<JoinedFile>& supplements);
    /// Makes a dataset the active one, opening it where it is not open.
    /// @param member  empty for a file's only dataset
    /// @return        whether it is
    bool bringUp(const QString& path, const QString& member);
    /// Looks what has become of the open files in a folder, or of one file.
    void lookAtFiles(const QString& changed);
    /// Opens files once the window can be seen, nobody is asked anything and the event in hand is
    /// done: what comes from outside must not change what a question is about.
    void openLater(const QStringList& paths);
    /// The same for those of what was dropped that are files of this machine.
    void openDropped(const QList<QUrl>& urls);
    /// Reads the active dataset anew, and keeps what its user has made of it. Where the file cannot
    /// be read the old one stays.
    void reloadActive();
    /// The window of a dataset; null while it is not open.
    /// @param member  empty for a file's only dataset
    [[nodiscard]] DatasetWindow* find(const QString& path, const QString& member) const;
    void activate(QMdiSubWindow* window);
    /// Takes a window that closes out of the map.
    void forget(DatasetWindow* window);

    [[nodiscard]] const OpenFilesMap& openFiles() const { return m_openFiles; }

signals:
    /// A window has been created and is not shown yet.
    void signalOpened(DatasetWindow* window);
    /// The window is on the screen. Under a style sheet it has the fonts that it keeps from now on.
    void signalShown(DatasetWindow* window);
    /// A file has been opened.
    void signalRead(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Reload
    {
        NotOpen,
        Agreed,
        Declined
    };

    [[nodiscard]] bool openDatasetOf(const DatasetOrigin& origin);
    [[nodiscard]] Reload settleReload(const DatasetOrigin& origin);
    [[nodiscard]] bool close(QMdiSubWindow* window, const DatasetOrigin& origin);
    void openWaiting();
    [[nodiscard]] std::unique_ptr<DatasetWindow> read(const DatasetOrigin& origin);
    [[nodiscard]] Result<std::unique_ptr<DatasetWindow>> load(const DatasetOrigin& origin);
    [[nodiscard]] Result<OpenedDataset> loadFile(const QString& path, const QString& member);
    void tellFailure(const DatasetOrigin& origin, const QString& reason);
    void show(std::unique_ptr<DatasetWindow> window);
    void reload(DatasetWindow& window);
    void bringBack(const DatasetWindow& window, ViewState state);
    [[nodiscard]] QList<DatasetWindow*> windows() const;
    void followWindows();
    void lookAtActiveFile(Qt::ApplicationState state) const;

    Surroundings m_surroundings;
    OpenFilesMap m_openFiles;
    QStringList m_waiting;
    QTimer m_retry;
    FileWatch m_watch;
    QDeadlineTimer m_start;  ///< until when the window may be painted for the first time
    bool m_isPainted = false;
};
