#pragma once

#include "data/StatDataset.h"

#include <initializer_list>
#include <memory>
#include <optional>

/// A dataset that code builds cell by cell instead of reading it from a file. Only type code 5 is
/// numeric in it, and a missing number is negative infinity.
class InMemoryDataset : public StatDataset
{
public:
    [[nodiscard]] std::string cellText(int row, int column) const override;
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    [[nodiscard]] int findVariable(std::wstring_view name) const override;
    [[nodiscard]] std::string formatCharacter(std::string_view text, std::string_view format,
                                              int width, int decimals) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;
    /// Throws std::out_of_range for a column that does not exist, as isCharacter does.
    [[nodiscard]] bool isNumeric(int column) const override;
    [[nodiscard]] bool isCharacter(int column) const override;
    [[nodiscard]] std::string stringValue(int row, int column) const override;
    /// Throws std::out_of_range outside the cells; NaN for a cell that holds a text.
    [[nodiscard]] double numericValue(int row, int column) const override;

    [[nodiscard]] MissingMark missingMark(int column) const override;

    /// What the numeric cells hold where a number is missing.
    static constexpr double missing = -std::numeric_limits<double>::infinity();

private:
    friend class InMemoryDatasetBuilder;
};

/// The attributes of one variable of an InMemoryDataset.
struct VariableDescription
{
    std::string name;
    std::string label{};
    std::string format{};
    TypeCode type = TypeCode::Double;
    std::int32_t length = 8;
    std::int32_t width = 0;
    std::int32_t decimals = 0;
    std::string informat{};
};

/// Builds an InMemoryDataset: variables first, then cell after cell, row by row.
class InMemoryDatasetBuilder
{
public:
    InMemoryDatasetBuilder();

    InMemoryDatasetBuilder& setTableName(std::string name);
    InMemoryDatasetBuilder& setFileLabel(std::string label);
    /// Adds a variable. Throws std::logic_error once the first cell has been added, and for a type
    /// other than Character and Double.
    InMemoryDatasetBuilder& addVariable(VariableDescription variable);

    /// Makes room for that many observations.
    void reserve(int observations);
    /// Appends the next cell. Throws std::logic_error when the variable whose turn it is has the
    /// other type; a NaN becomes the missing marker.
    InMemoryDatasetBuilder& addText(std::string_view text);
    InMemoryDatasetBuilder& addNullText();
    InMemoryDatasetBuilder& addNumber(double number);
    InMemoryDatasetBuilder& addMissing();

    /// The finished dataset. Throws std::logic_error when the last row is incomplete.
    [[nodiscard]] std::unique_ptr<InMemoryDataset> build();

private:
    void append(TypeCode type, CellValue value);

    std::unique_ptr<InMemoryDataset> m_dataset;
};
