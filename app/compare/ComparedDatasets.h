#pragma once

#include "analysis/comparison/Comparison.h"
#include "app/window/DatasetWindow.h"

#include <memory>

/// A comparison of two open datasets, which it keeps for as long as it is shown, whatever becomes
/// of their windows.
struct ComparedDatasets
{
    std::shared_ptr<StatDataset> base;
    std::shared_ptr<StatDataset> compare;
    DatasetOrigin baseOrigin;
    DatasetOrigin compareOrigin;
    comparison::Comparison result;
};
