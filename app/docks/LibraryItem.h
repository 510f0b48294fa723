#pragma once

#include "app/docks/FolderScanner.h"
#include "workspace/Library.h"

#include <QCoreApplication>
#include <QStandardItem>

#include <vector>

/// The item of a library in the workspace tree; below it stand the dataset files of its folder, or
/// a note of why there is none.
class LibraryItem : public QStandardItem
{
    Q_DECLARE_TR_FUNCTIONS(LibraryItem)

public:
    explicit LibraryItem(const Library& library);

    [[nodiscard]] const Library& library() const { return m_library; }
    /// Takes over what has been edited. Files of another folder go.
    void setLibrary(const Library& library);
    /// Shows what the folder holds now. Items of files that are still there stay.
    void showListing(const FolderScanner::Listing& listing);
    /// Says that the folder does not answer. What it held goes.
    void showSilence();

private:
    void showFiles(const std::vector<datasetfolder::File>& files);
    void showNote(const QString& text);
    void showState(const QString& problem);

    Library m_library;
};
