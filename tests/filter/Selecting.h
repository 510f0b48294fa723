#pragma once

#include "grid/filter/CompiledCondition.h"
#include "grid/filter/ParseError.h"
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
inline std::vector<int> selected(const CompiledCondition& condition)
{
    BitVector mask(3, 7);
    condition.select(mask);
    std::vector<int> observations;
    for (auto bit = mask.find_first(); bit != BitVector::npos; bit = mask.find_next(bit)) {
        observations.push_back(static_cast<int>(bit) + 1);
    }
    return observations;
}

inline std::vector<int> selected(const StatDataset& dataset, std::string_view condition)
{
    try {
        return selected(CompiledCondition(QString::fromStdString(std::string(condition)), dataset));
    } catch (const ParseError& error) {
        ADD_FAILURE() << condition << ": " << error.what();
        return {};
    }
}

inline std::string withoutBlanksAtEnd(std::string text)
{
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

/// Why a condition cannot be compiled.
inline std::string refusal(const StatDataset& dataset, std::string_view condition)
{
    try {
        static_cast<void>(
            CompiledCondition(QString::fromStdString(std::string(condition)), dataset));
    } catch (const ParseError& error) {
        return error.what();
    }
    return "none";
}
