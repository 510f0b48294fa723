#pragma once

#include "app/open/DatasetOpener.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>

class CellDocks;
class CodeWindow;
class Comparisons;
class CommandBoxes;
class DatasetWindow;
class DatasetsArea;
class DockWindows;
class GridLook;
class GridServices;
class LogView;
class MainMenus;
class MainTableView;
class Libraries;
class MainToolBars;
class Navigation;
class OperatorLabel;
class OutputView;
class QAbstractButton;
class QAction;
class QDockWidget;
class QMdiSubWindow;
class QSettings;
class QStandardItem;
class QTableWidget;
class QUrl;
class PropertiesWindows;
class RecentFiles;
class Sessions;
class Settings;
class SidePanels;
class StatusCounters;
class SuppJoins;
class UpdateCheck;
class UserPrompts;
class WindowArrangement;
class WorkspaceStore;
class WorkspaceTree;
struct MainActions;

/// What the main window takes from outside, so that tests can put something else in its place.
struct MainWindowServices
{
    std::unique_ptr<QSettings> settings;  ///< the user's settings when null
    std::unique_ptr<WorkspaceStore> store;  ///< the user's workspace when null
    std::unique_ptr<UserPrompts> prompts;  ///< dialogs over the main window when null
    DatasetLoader load;  ///< the readers when empty
    /// Shows a page, if it can; the desktop's browser when empty.
    std::function<bool(const QUrl&)> openUrl;
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

    /// Opens a file that the program was started with, or that another start has handed over, as
    /// soon as the window can be seen and no question is open.
    void openReceivedFile(const QString& path);
    /// Whether the workspace store could be opened; without it the program is about to end.
    [[nodiscard]] bool hasWorkspace() const { return m_store != nullptr; }

    [[nodiscard]] const OpenFilesMap& openFiles() const { return m_opener->openFiles(); }
    /// The grid of the active dataset, or nullptr.
    [[nodiscard]] MainTableView* activeView() const;

public slots:  // NOLINT(readability-redundant-access-specifiers): moc reads it
    void on_actionOpenSasData_triggered();
    void on_actionOpenDatasetJson_triggered();
    void on_actionOpenRData_triggered();
    void on_actionOpenSpssData_triggered();
    void on_actionOpenStataData_triggered();
    void on_actionOpenCsv_triggered();
    void on_actionNewSasProgram_triggered();
    void on_actionClose_triggered();
    void on_actionCloseAll_triggered();
    void on_actionExit_triggered();
    void on_actionAbout_triggered();
    void on_actionCheckForUpdates_triggered();
    void on_actionDocumentation_triggered();
    void on_actionOptions_triggered();
    void cmdOpenFolder();
    void showManageLibrariesDialog();
    void onTreeViewDoubleClicked(const QModelIndex& index);
    void onTreeViewContextMenuRequested(const QPoint& position);
    void refreshFolder(QStandardItem* folderItem);
    void removeFolder();
    void setLibname();
    void on_actionSaveSession_triggered();
    void onColumnHeaderLabelChanged(QAbstractButton* button);
    void onSwitchWindow();
    void handleTabSwitch();
    void activeWindow(QMdiSubWindow* window);
    void subWindowClosed(DatasetWindow* closedWindow);
    void setLabelStatusBarRow(const QString& text);
    void setLabelStatusBarVar(const QString& text);
    void setLabelStatusBarBy();
    void setLabelStatusBarLf(const QString& filter);
    void setLabelStatusBarDf(const QString& filter);
    void showDockFreq();
    void showDockDesc(QTableWidget* tableWidget);
    void showDockVar();
    void datasetProperty();
    void showCompareDialog();
    void updateStatus();
    void editDataFilter();
    void generateSasCode(MainTableView* view = nullptr);
    void toggleDarkMode();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void createServices(MainWindowServices services);
    void createActions();
    void createCentralArea();
    void createOpener(DatasetLoader load);
    void createToolBars();
    void createDocks();
    void fillDocks();
    void createComparisons();
    void createMenus();
    void connectActions();
    void connectGrid(MainTableView* view);
    void prepareWindow(DatasetWindow* window);
    void openWorkspace(std::unique_ptr<WorkspaceStore> store);
    void fillWorkspace();
    void showVariable(const QString& path, const QString& member, const QString& name);
    void showWhatIsOpen();
    void leaveGrid();
    void openPage(const QUrl& url);
    void showPanel(QDockWidget& dock);

    std::unique_ptr<QSettings> m_settingsStore;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<UserPrompts> m_prompts;
    std::unique_ptr<WorkspaceStore> m_store;
    std::function<bool(const QUrl&)> m_openUrl;
    std::unique_ptr<MainActions> m_actions;
    std::unique_ptr<MainMenus> m_menus;
    std::unique_ptr<StatusCounters> m_counters;
    std::unique_ptr<GridServices> m_gridServices;
    std::unique_ptr<DockWindows> m_docks;
    std::unique_ptr<SidePanels> m_sidePanels;
    std::unique_ptr<WindowArrangement> m_arrangement;
    std::unique_ptr<CellDocks> m_cellDocks;
    std::unique_ptr<GridLook> m_look;
    std::unique_ptr<RecentFiles> m_recentFiles;
    std::unique_ptr<Libraries> m_libraries;
    std::unique_ptr<Sessions> m_sessions;
    WorkspaceTree* m_tree = nullptr;
    MainToolBars* m_toolBars = nullptr;
    CommandBoxes* m_boxes = nullptr;
    Navigation* m_navigation = nullptr;
    PropertiesWindows* m_properties = nullptr;
    DatasetsArea* m_area = nullptr;
    DatasetOpener* m_opener = nullptr;
    SuppJoins* m_suppJoins = nullptr;
    CodeWindow* m_code = nullptr;
    OutputView* m_output = nullptr;
    Comparisons* m_comparisons = nullptr;
    OperatorLabel* m_operator = nullptr;
    UpdateCheck* m_updateCheck = nullptr;
    QPointer<MainTableView> m_activeView;
    bool m_isArranged = false;  ///< whether the window has been shown with its layout
};
