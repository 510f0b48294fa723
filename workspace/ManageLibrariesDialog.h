#pragma once

#include "workspace/Library.h"
#include "workspace/LibraryPrompts.h"

#include <QDialog>
#include <QList>

class LibraryRegistry;
class QBoxLayout;
class QPushButton;
class QTableWidget;

/// Edits the list of libraries: which there are, their order and what belongs to each. Accepting it
/// writes the list to the store; where that fails the dialog says so and stays, edits and all.
class ManageLibrariesDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param registry  outlives the dialog
    ManageLibrariesDialog(const LibraryRegistry& registry, LibraryPrompts prompts,
                          QWidget* parent = nullptr);

    /// Reads the libraries, and tells the user where that fails.
    /// @return  whether there is a list to edit
    [[nodiscard]] bool load();
    void accept() override;

private:
    enum Column
    {
        Name,
        Directory,
        Alias,
        Filter,
        Columns
    };

    void createTable();
    [[nodiscard]] QBoxLayout* createButtons();
    QPushButton* addButton(const char* name, const QString& text, QBoxLayout& column,
                           void (ManageLibrariesDialog::*run)());
    void add();
    void edit();
    void remove();
    void move(int step);
    /// Fills the table anew and makes a row the current one.
    void showList(qsizetype current);
    void showRow(int row);
    void enableButtons();
    /// The folders of all libraries but one.
    [[nodiscard]] QStringList dirsWithout(qsizetype row) const;

    const LibraryRegistry& m_registry;
    LibraryPrompts m_prompts;
    QList<Library> m_libraries;
    QList<qint64> m_removed;
    QTableWidget* m_table;
    QPushButton* m_edit = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_moveUp = nullptr;
    QPushButton* m_moveDown = nullptr;
};
