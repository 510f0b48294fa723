#pragma once

#include "data/StatDataset.h"

#include <QStringView>

#include <optional>

namespace variablenames {

/// The variable of that name, else the first whose name differs only in letter case, for any
/// UTF-8 names and every kind of dataset. StatDataset::findVariable compares single bytes.
[[nodiscard]] std::optional<int> find(const StatDataset& dataset, QStringView name);

}  // namespace variablenames
