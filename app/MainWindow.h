#pragma once

#include "app/DatasetOpener.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

class DatasetWindow;
class FilterBar;
class GridServices;
class MainMenus;
class MainTableView;
class QMdiArea;
class QMdiSubWindow;
class QSettings;
class Settings;
class StatusCounters;
class UserPrompts;

/// What the main window takes from outside, so that tests can put something else in its place.
struct MainWindowServices
{
    std::unique_ptr<QSettings> store;  ///< the user's settings when null
    std::unique_ptr<UserPrompts> prompts;  ///< dialogs over the main window when null
    DatasetLoader load;  ///< the readers when empty
};

/// The one top-level window: owns the sub-windows of the open datasets and everything round them,
/// and connects them with each other.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    explicit MainWindow(MainWindowServices services, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens one dataset file; whatever goes wrong is told to the user.
    /// @return  whether the file is open now
    bool openDatasetFile(const QString& path);

    [[nodiscard]] const OpenFilesMap& openFiles() const { return m_opener->openFiles(); }
    /// The grid of the active dataset, or nullptr.
    [[nodiscard]] MainTableView* activeView() const;

public slots:  // NOLINT(readability-redundant-access-specifiers): moc reads it
    void on_actionOpenSasData_triggered();
    void on_actionOpenSpssData_triggered();
    void on_actionOpenStataData_triggered();
    void on_actionClose_triggered();
    void on_actionCloseAll_triggered();
    void on_actionExit_triggered();
    void activeWindow(QMdiSubWindow* window);
    void subWindowClosed(DatasetWindow* closedWindow);
    void setLabelStatusBarRow(const QString& text);
    void setLabelStatusBarVar(const QString& text);
    void setLabelStatusBarBy();
    void setLabelStatusBarLf(const QString& filter);
    void setLabelStatusBarDf(const QString& filter);

private:
    void createServices(MainWindowServices services);
    void createMdiArea();
    void createStatusBar();
    void createFilterBar();
    void createMenus();
    void createOpener(DatasetLoader load);
    void connectWindow(DatasetWindow* window);
    void connectGrid(MainTableView* view);
    void submitCommand(const QString& command);
    void focusGrid();

    std::unique_ptr<QSettings> m_store;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<UserPrompts> m_prompts;
    std::unique_ptr<MainMenus> m_menus;
    std::unique_ptr<StatusCounters> m_counters;
    std::unique_ptr<GridServices> m_gridServices;
    FilterBar* m_filterBar = nullptr;
    QMdiArea* m_mdiArea = nullptr;
    DatasetOpener* m_opener = nullptr;
    QPointer<MainTableView> m_activeView;
};
