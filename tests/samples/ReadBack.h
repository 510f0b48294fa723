#pragma once

#include "data/readers/DatasetFile.h"

#include <filesystem>
#include <stdexcept>

using Texts = std::vector<std::string>;

/// The file as Quorlane reads it.
inline std::unique_ptr<StatDataset> readBack(const std::filesystem::path& path,
                                             const std::string& member = {})
{
    auto opened = openDataset(QString::fromStdString(path.string()), {.member = member});
    if (!opened) {
        throw std::runtime_error(opened.error());
    }
    return std::move(opened.value().dataset);
}

/// A row as it is shown.
inline Texts shownRow(const StatDataset& dataset, int row)
{
    Texts texts;
    for (int column = 0; column < dataset.variableCount(); ++column) {
        texts.push_back(dataset.cellText(row, column));
    }
    return texts;
}
