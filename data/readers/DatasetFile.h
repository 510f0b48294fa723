#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

struct OpenOptions
{
    bool metadataOnly = false;
    /// Which dataset of a file that holds several; the first when empty.
    std::string member{};
    /// Told, in percent, how much of the file has been read each time that this changes. It is not
    /// to throw; files that are read in a blink tell nothing.
    std::function<void(int)> progress{};
};

/// A dataset that came from a file.
struct OpenedDataset
{
    std::unique_ptr<StatDataset> dataset;
    /// The names of all datasets of the file; see datasetNames().
    std::vector<std::string> members;
};

/// The names of all datasets of a file, in its order and all different, each good for
/// OpenOptions::member. Empty for a format whose files hold one dataset only, and a list of one
/// needs no choice either. No values are read.
[[nodiscard]] Result<std::vector<std::string>> datasetNames(const QString& path);

/// What tells an open dataset from all others: its file's path, and behind it "::name" for one
/// dataset of a file of several; for a file's only one the name is left empty.
[[nodiscard]] QString datasetKey(const QString& path, const QString& name = {});

/// Reads a data file: the reader is chosen by the suffix, in any letter case, and the source kind
/// is recorded in the dataset, and so is the file's base name, which a dataset without a name of
/// its own goes by. The reason of a failure is a sentence that names the file; what may be wrong
/// with a file that was read stands in StatDataset::damageNotes().
[[nodiscard]] Result<OpenedDataset> openDataset(const QString& path,
                                                const OpenOptions& options = {});

/// Whether there is a reader for the file's suffix.
[[nodiscard]] bool isDatasetFile(const QString& path);
