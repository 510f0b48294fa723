#pragma once

#include "grid/opened/BoxLine.h"

#include <QObject>
#include <QPointer>
#include <QString>

class CommandBar;
class GridServices;
class MainTableView;
class QMainWindow;
class UserPrompts;

/// The three boxes in which commands, the library filter and the BY variables of the active grid
/// are typed, and what happens to what is typed there.
class CommandBoxes : public QObject
{
    Q_OBJECT

public:
    /// Adds its toolbars to the window. Both outlive the boxes.
    CommandBoxes(QMainWindow& window, GridServices& services);

    /// Lets the boxes show and serve a grid; null for none. It has to be taken away before it goes.
    void setGrid(MainTableView* grid);

    [[nodiscard]] CommandBar* datasetFilterBar() const { return m_datasetFilter; }

    /// Shows what is in force for the grid.
    void showDatasetFilter(const QString& text);
    void showLibraryFilter(const QString& text);
    void showByVariables();

    /// Lets the user edit the condition of the grid's dataset filter. An empty one clears it, and a
    /// wrong one can be mended.
    void editDataFilter(UserPrompts& prompts);

signals:
    /// The library filter may have changed without a grid that would tell.
    void signalLibraryFilterSubmitted();

private:
    [[nodiscard]] CommandBar* addBar(const QString& title, const QString& barName,
                                     const QString& boxName, BoxLine::Box box);
    void submit(BoxLine::Box box, const QString& line, bool isEdited);
    [[nodiscard]] CommandOutcome run(const BoxLine& line);
    [[nodiscard]] CommandBar& barOf(BoxLine::Box box) const;
    [[nodiscard]] bool applyDataFilter(const QString& condition);
    void leaveBoxes();

    QMainWindow& m_window;
    GridServices& m_services;
    CommandBar* m_datasetFilter;
    CommandBar* m_libraryFilter;
    CommandBar* m_byVariables;
    QPointer<MainTableView> m_grid;
};
