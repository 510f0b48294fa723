#pragma once

#include "data/values/MissingTag.h"
#include "tests/support/ScriptedDataset.h"

#include <memory>
#include <random>
#include <vector>

/// Datasets with a variable of every type code, V0 to V5, and a second character variable V6. Some
/// rows are left out by either filter.
namespace randomdatasets {

constexpr double naInteger = -2147483648.0;

inline std::unique_ptr<ScriptedDataset> withVariables(SourceKind kind)
{
    auto dataset = std::make_unique<ScriptedDataset>(kind);
    for (int type = 0; type <= 5; ++type) {
        dataset->variable("V" + std::to_string(type), TypeCode{type});
    }
    dataset->variable("V6", TypeCode::Character);
    return dataset;
}

inline void filter(StatDataset& dataset, std::mt19937& random)
{
    for (std::size_t row = 0; row < dataset.libraryFilterMask().size(); ++row) {
        dataset.libraryFilterMask()[row] = random() % 8 != 0;
        dataset.datasetFilterMask()[row] = random() % 8 != 0;
    }
}

/// Few distinct values, many of them missing or on the edge of what a rule is about.
inline std::unique_ptr<ScriptedDataset> ofFewValues(SourceKind kind, std::mt19937& random, int rows)
{
    using Values = std::vector<ScriptedDataset::Value>;
    constexpr double missing = ScriptedDataset::missing;
    const Values texts{"N/A", "", "a", "ab", "a ", "B", "N/AB", "\xC3\xA9"};
    const Values numbers{missing,   -missing,  missingtag::number('A'),
                         -0.0,      0.0,       1.0,
                         1.0000001, 1.5,       9.0,
                         naInteger, 10.0,      -2.0,
                         HUGE_VAL,  -HUGE_VAL, 2147483647.0};
    auto dataset = withVariables(kind);
    dataset->rows(rows, [&](int row, int column) {
        const Values& values = column % 6 == 0 ? texts : numbers;
        return values[random() % (row % 2 == 0 ? values.size() : 4)];
    });
    filter(*dataset, random);
    return dataset;
}

/// So many values that tables grow and sorts take bytes at a time; those of V2 are few.
inline std::unique_ptr<ScriptedDataset> ofManyValues(SourceKind kind, std::mt19937& random)
{
    std::normal_distribution<double> normal(0.0, 1e3);
    auto dataset = withVariables(kind);
    dataset->rows(6000, [&](int, int column) -> ScriptedDataset::Value {
        switch (column) {
        case 0:
            return "SUBJECT-" + std::to_string(random() % 4000);
        case 2:
            return double(random() % 3);
        case 5:
            return normal(random);
        case 6:
            return "term " + std::to_string(random() % 2500);
        default:
            return double(random() % 5000);
        }
    });
    filter(*dataset, random);
    return dataset;
}

}  // namespace randomdatasets
