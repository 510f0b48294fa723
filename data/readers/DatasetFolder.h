#pragma once

#include "data/FilePath.h"
#include "data/Result.h"

#include <QString>

#include <vector>

/// What a folder holds of dataset files.
namespace datasetfolder {

struct File
{
    QString path;
    filepath::FileState state;

    /// Its last component.
    [[nodiscard]] QString name() const { return path.section(u'/', -1); }
    bool operator==(const File&) const = default;
};

/// The files that stand in the folder itself and whose suffix is known, by their names, letter case
/// apart. Nothing is opened. The reason of a failure is a sentence that names the folder.
[[nodiscard]] Result<std::vector<File>> list(const QString& folder);

}  // namespace datasetfolder
