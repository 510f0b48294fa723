#pragma once

#include "data/StatDataset.h"
#include "data/values/Texts.h"

#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// A dataset for tests that takes any type codes and claims to come from any kind of file, whose
/// missing values and dates it has.
/// Variables first, then rows. Numbers show as plain text, missing ones as a point, under every
/// type code.
class ScriptedDataset : public StatDataset
{
public:
    using Value = std::variant<double, std::string>;

    static constexpr double missing = std::numeric_limits<double>::quiet_NaN();

    explicit ScriptedDataset(SourceKind kind = SourceKind::Sas) { setSourceKind(kind); }

    ScriptedDataset& variable(std::string name, TypeCode type, std::string label = {},
                              int length = 8)
    {
        const auto entry = static_cast<std::size_t>(m_variableCount);
        resizeVariables(m_variableCount + 1);
        m_names[entry] = std::move(name);
        m_labels[entry] = std::move(label);
        m_typeCodes[entry] = type;
        m_lengths[entry] = length;
        resizeBits();
        return *this;
    }

    ScriptedDataset& row(std::initializer_list<Value> values)
    {
        for (const Value& value : values) {
            append(value);
        }
        ++m_observationCount;
        resizeBits();
        return *this;
    }

    /// Appends rows; `value(row, column)` gives the cells.
    template <typename ValueOf>
    ScriptedDataset& rows(int count, ValueOf value)
    {
        m_cells.reserve(m_cells.size()
                        + static_cast<std::size_t>(count)
                            * static_cast<std::size_t>(m_variableCount));
        for (int row = 0; row < count; ++row) {
            for (int column = 0; column < m_variableCount; ++column) {
                append(value(row, column));
            }
        }
        m_observationCount += count;
        resizeBits();
        return *this;
    }

    ScriptedDataset& tableName(std::string name)
    {
        m_header.tableName = std::move(name);
        return *this;
    }

    /// The variables that its file tells to be the key.
    ScriptedDataset& keys(std::vector<int> variables)
    {
        m_keyVariables = std::move(variables);
        return *this;
    }

    [[nodiscard]] MissingMark missingMark(int column) const override
    {
        const TypeCode type = m_typeCodes[static_cast<std::size_t>(column)];
        const bool isInteger = type == TypeCode::Int8 || type == TypeCode::Int32;
        return sourceKind() == SourceKind::R && isInteger ? MissingMark(-2147483648.0)
                                                          : MissingMark();
    }
    [[nodiscard]] std::string_view missingText(int) const override
    {
        return sourceKind() == SourceKind::R ? "N/A" : "";
    }
    [[nodiscard]] DateScale dateScale(int column) const override
    {
        const std::string& format = m_formats[static_cast<std::size_t>(column)];
        switch (sourceKind()) {
        case SourceKind::R:
            return DateScale::ofR(format);
        case SourceKind::Spss:
            return DateScale::ofSpss(format);
        case SourceKind::Stata:
            return DateScale::ofStata(format);
        default:
            return DateScale::ofSas(format);
        }
    }

    [[nodiscard]] std::string cellText(int row, int column) const override
    {
        if (!inRange(row, column)) {
            return {};
        }
        if (isCharacter(column)) {
            return texts::trimmed(stringValue(row, column));
        }
        const double number = numericValue(row, column);
        if (std::isnan(number)) {
            return ".";
        }
        std::string text = std::to_string(number);
        text.erase(text.find_last_not_of('0') + 1);
        return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
    }

private:
    void append(const Value& value)
    {
        if (const auto* text = std::get_if<std::string>(&value)) {
            m_cells.push_back(m_textPool.intern(*text));
        } else {
            m_cells.push_back(std::get<double>(value));
        }
    }
};
