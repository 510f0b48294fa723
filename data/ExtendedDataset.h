#pragma once

#include "data/InMemoryDataset.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// A dataset that was read from a file with further text variables behind its own. What its own
/// variables show and mean is left to the reader that knows their formats.
class ExtendedDataset : public InMemoryDataset
{
public:
    /// A variable that is added.
    struct Column
    {
        std::string name;
        std::string label;
        /// Where its values come from, in lines for people.
        std::string origin;
        std::vector<std::string> texts;  ///< its distinct values
        std::vector<std::uint32_t> places;  ///< of each observation's text, from 1; 0 for none
    };

    /// What the dataset is as a whole.
    struct Description
    {
        std::string name;
        std::vector<FileAttribute> attributes;
    };

    /// Takes over a dataset that was read with its values. Every missing number becomes the missing
    /// marker; the letter of a special one is lost.
    ExtendedDataset(std::unique_ptr<StatDataset> source, Description description,
                    const std::vector<Column>& columns);
    ~ExtendedDataset() override;

    [[nodiscard]] std::string cellText(int row, int column) const override;
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    [[nodiscard]] std::string formatCharacter(std::string_view text, std::string_view format,
                                              int width, int decimals) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;
    [[nodiscard]] std::string_view missingText(int column) const override;
    [[nodiscard]] std::string writtenFormat(int column) const override;
    [[nodiscard]] DateScale dateScale(int column) const override;
    [[nodiscard]] std::string variableOrigin(int column) const override;

private:
    [[nodiscard]] bool isOfSource(int column) const;
    void describe(Description description);
    void addVariables(const std::vector<Column>& columns);
    void fillCells(const std::vector<Column>& columns);

    std::unique_ptr<StatDataset> m_source;  ///< without its values
    std::vector<std::string> m_origins;  ///< of the added variables
};
