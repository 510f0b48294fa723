#pragma once

#include "app/open/OpenFilesMap.h"
#include "data/readers/FileKinds.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class DatasetWindow;
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
        QMdiArea& area;
        OpenDatasets& datasets;
        UserPrompts& prompts;
        Settings& settings;
        DatasetLoader load;
    };

    explicit DatasetOpener(Surroundings surroundings, QObject* parent = nullptr);

    /// Lets the user choose files of a kind and opens them one by one.
    void chooseAndOpen(FileKind kind);
    /// Opens one file. One that is open already is only activated, unless the user wants it
    /// reloaded.
    /// @return  whether the file is open now
    bool open(const QString& path);
    /// Opens files once nobody is asked anything and the event in hand is done: what comes from
    /// outside must not change what a question is about.
    void openLater(const QStringList& paths);
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

private:
    enum class Reload
    {
        NotOpen,
        Agreed,
        Declined
    };

    [[nodiscard]] Reload settleReload(const DatasetOrigin& origin);
    [[nodiscard]] bool close(QMdiSubWindow* window, const DatasetOrigin& origin);
    void openWaiting();
    [[nodiscard]] bool load(const DatasetOrigin& origin);
    void show(std::unique_ptr<DatasetWindow> window);
    void activate(QMdiSubWindow* window);

    Surroundings m_surroundings;
    OpenFilesMap m_openFiles;
    QStringList m_waiting;
    QTimer m_retry;
};
