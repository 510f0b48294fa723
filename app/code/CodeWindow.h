#pragma once

#include "workspace/program/ProgramText.h"

#include <QPointer>
#include <QString>
#include <QTabWidget>

#include <functional>
#include <utility>

class GridServices;
class MainTableView;
class ProgramEditor;
class ProgramWindow;
class Settings;
class UserPrompts;

/// What the Code window holds: the program of the active grid, and the user's programs in tabs of
/// their own. No program that was typed goes without a question.
class CodeWindow : public QTabWidget
{
    Q_OBJECT

public:
    /// All outlive the window.
    CodeWindow(GridServices& services, UserPrompts& prompts, Settings& settings,
               QWidget* parent = nullptr);

    /// Tells the library that holds a file; one without a folder for none.
    using LibraryOf = std::function<programtext::Library(const QString& filePath)>;
    void setLibraries(LibraryOf libraryOf) { m_libraryOf = std::move(libraryOf); }

    /// Shows the program of what a grid shows from now on; null for none.
    void follow(MainTableView* grid);
    /// Writes that program anew.
    void generate();

    /// Adds a program of the user's, not saved yet.
    void addProgram(const QString& text = {});
    void openPrograms();
    /// Saves the program in front, or asks where.
    /// @return  whether it is saved
    bool save();
    bool saveAs();
    /// Asks for each program that is not saved.
    /// @return  whether all may go
    [[nodiscard]] bool mayGo();
    /// Runs the program in front on the grid that is followed.
    void submit();

signals:
    /// The user wants back to the grid.
    void signalLeft();

private:
    [[nodiscard]] ProgramEditor& editorAt(int tab) const;
    [[nodiscard]] ProgramEditor* addEditor(const QString& path, const QString& text);
    [[nodiscard]] bool mayGo(int tab);
    bool saveTo(ProgramEditor& editor, const QString& path);
    void close(int tab);
    void showTitle(ProgramEditor& editor);

    GridServices& m_services;
    UserPrompts& m_prompts;
    Settings& m_settings;
    ProgramWindow* m_generated;
    QPointer<MainTableView> m_grid;
    QString m_filePath;
    bool m_isJoined = false;  ///< whether the dataset comes from no single file
    QString m_datasetName;
    LibraryOf m_libraryOf;
    int m_untitled = 0;
};
