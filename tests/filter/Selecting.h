#pragma once

#include "grid/filter/FilterCondition.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

/// A scripted dataset whose variables have formats.
class FormattedDataset : public ScriptedDataset
{
public:
    using ScriptedDataset::ScriptedDataset;

    FormattedDataset& variable(std::string name, TypeCode type, std::string format = {})
    {
        ScriptedDataset::variable(std::move(name), type);
        m_formats.back() = std::move(format);
        return *this;
    }
};

/// The observations that a condition selects, counted from 1 as users see them.
inline std::vector<int> selected(const StatDataset& dataset, std::string_view condition)
{
    const auto filter = FilterCondition::compile(
        QString::fromUtf8(condition.data(), static_cast<qsizetype>(condition.size())), dataset);
    if (!filter) {
        ADD_FAILURE() << condition << ": " << filter.error();
        return {};
    }
    BitVector mask;
    filter.value().select(mask);
    EXPECT_EQ(mask.size(), static_cast<std::size_t>(dataset.observationCount()));
    std::vector<int> observations;
    for (auto bit = mask.find_first(); bit != BitVector::npos; bit = mask.find_next(bit)) {
        observations.push_back(static_cast<int>(bit) + 1);
    }
    return observations;
}

/// Why a condition cannot be compiled.
inline std::string refusal(const StatDataset& dataset, std::string_view condition)
{
    const auto filter = FilterCondition::compile(
        QString::fromUtf8(condition.data(), static_cast<qsizetype>(condition.size())), dataset);
    return filter ? "none" : filter.error();
}
