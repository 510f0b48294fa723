#pragma once

#include "grid/filter/RememberedAnswers.h"

#include <QStringMatcher>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

class StatDataset;

/// Tells which cells of a dataset show a text, whatever the case of its letters. Each distinct
/// value of a variable is looked at once, as long as that pays.
class CellSearch
{
public:
    /// The dataset outlives the search.
    CellSearch(const StatDataset& dataset, const QString& text);

    /// Bit i is set when the cell of observation i of these shows the text.
    /// @param observations  up to 64
    [[nodiscard]] std::uint64_t word(int variable, std::span<const std::uint32_t> observations);

private:
    [[nodiscard]] bool isShown(int variable, std::uint32_t observation) const;

    const StatDataset& m_dataset;
    QStringMatcher m_matcher;
    std::string m_asciiText;  ///< in small letters; empty where the text has other characters
    std::vector<RememberedAnswers> m_answers;  ///< one for each variable
};
