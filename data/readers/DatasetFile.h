#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

struct OpenOptions
{
    bool metadataOnly = false;
    /// Which dataset of a file that holds several; the first when empty.
    std::string member{};
};

/// A dataset that came from a file.
struct OpenedDataset
{
    std::unique_ptr<StatDataset> dataset;
    /// The names of all datasets of the file, of a format whose files can hold several.
    std::vector<std::string> members;
};

/// Reads a data file: the reader is chosen by the suffix, in any letter case, and the source kind
/// is recorded in the dataset. The reason of a failure is a sentence that names the file; what may
/// be wrong with a file that was read stands in StatDataset::damageNotes().
[[nodiscard]] Result<OpenedDataset> openDataset(const QString& path,
                                                const OpenOptions& options = {});

/// Whether there is a reader for the file's suffix.
[[nodiscard]] bool isDatasetFile(const QString& path);
