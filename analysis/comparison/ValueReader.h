#pragma once

#include "data/StatDataset.h"
#include "data/values/MissingTag.h"
#include "grid/filter/CellColumn.h"

#include <string_view>

namespace comparison {

/// The values of one variable as both sides of a comparison understand them: missing numbers as
/// NaN, missing texts as empty ones, and dates and times, where both sides show some, as the counts
/// of SAS.
class ValueReader
{
public:
    ValueReader(const StatDataset& dataset, int variable, bool countsAsSas)
        : m_cells(dataset, variable)
        , m_mark(dataset.missingMark(variable))
        , m_missingText(dataset.missingText(variable))
        , m_scale(dataset.dateScale(variable))
        , m_countsAsSas(countsAsSas)
    { }

    [[nodiscard]] const CellValue& cell(std::size_t observation) const
    {
        return *m_cells.at(observation);
    }
    [[nodiscard]] double number(const CellValue& cell) const
    {
        const double number = m_mark.unified(cells::number(cell));
        return m_countsAsSas && number == number ? m_scale.sasCount(number) : number;
    }
    /// Without the blanks that fill it up.
    [[nodiscard]] std::string_view text(const PooledText* record) const
    {
        if (record == nullptr || record->text() == m_missingText) {
            return {};
        }
        std::string_view text = record->text();
        text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
        return text;
    }
    [[nodiscard]] std::string_view text(const CellValue& cell) const
    {
        return text(cells::record(cell));
    }

private:
    CellColumn m_cells;
    MissingMark m_mark;
    std::string_view m_missingText;
    DateScale m_scale;
    bool m_countsAsSas;
};

/// Whether both variables show dates or times, so that their counts can be told apart and brought
/// to one scale.
[[nodiscard]] inline bool bothCountTime(const StatDataset& base, int b, const StatDataset& compare,
                                        int c)
{
    const auto countsTime = [](const StatDataset& dataset, int variable) {
        return dataset.isNumeric(variable)
            && dataset.dateScale(variable).content() != DateScale::Content::Number;
    };
    return countsTime(base, b) && countsTime(compare, c);
}

/// The letter of a missing number, a capital whichever program wrote it; NUL for a plain one.
[[nodiscard]] inline char missingLetter(double missing)
{
    const char letter = missingtag::of(missing);
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace comparison
