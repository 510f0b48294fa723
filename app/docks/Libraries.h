#pragma once

#include "app/docks/FolderScanner.h"
#include "workspace/Library.h"
#include "workspace/LibraryPrompts.h"
#include "workspace/LibraryRegistry.h"
#include "workspace/program/ProgramText.h"

#include <QObject>

class GridServices;
class LibraryItem;
class QStandardItem;
class QWidget;
class Settings;
class UserPrompts;
class WorkspaceStore;
class WorkspaceTree;

/// The libraries in the workspace tree: registered, edited, followed on the disk and taken out.
class Libraries : public QObject
{
    Q_OBJECT

public:
    /// All outlive the libraries.
    struct Surroundings
    {
        QWidget& window;
        WorkspaceTree& tree;
        UserPrompts& prompts;
        Settings& settings;
        GridServices& services;
    };

    Libraries(const Surroundings& surroundings, const WorkspaceStore& store);

    /// Fills the tree from the store.
    void fill();
    /// Lets the user choose a folder, which becomes a library.
    void openFolder();
    void showManageDialog();
    /// Reads a library's folder anew.
    void refresh(QStandardItem* library);
    void edit(QStandardItem* library);
    /// Takes a library out, if the user says yes. Its files stay.
    void remove(QStandardItem* library);
    void rename(QStandardItem* library, const QString& name);
    /// Shows the variables of all datasets of a library.
    void showVariables(QStandardItem* library);
    /// The library that a file stands in; one without a folder for none.
    [[nodiscard]] programtext::Library libraryOf(const QString& path) const;
    /// Puts the filter of the library that a file has been opened from in force, if none is.
    void applyFilterOf(const QString& path);

signals:
    /// A variable of a dataset is to be shown.
    void signalVariableRequested(const QString& path, const QString& member,
                                 const QString& variable);
    /// Libraries have come, gone or changed.
    void signalChanged();
    /// Files in the folder have come, gone or changed.
    void signalFolderChanged(const QString& folder);

private:
    void show(const QList<Library>& libraries);
    void tell(const std::string& failure);
    void showListing(const QString& folder, const FolderScanner::Listing& listing, bool isAsked);
    void showSilence(const QString& folder);
    void watch();
    [[nodiscard]] QList<LibraryItem*> items() const;
    [[nodiscard]] LibraryPrompts prompts();

    Surroundings m_surroundings;
    LibraryRegistry m_registry;
    FolderScanner m_scanner;
};
