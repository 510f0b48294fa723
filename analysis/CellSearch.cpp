#include "analysis/CellSearch.h"

#include "data/cells/ValueKey.h"
#include "data/StatDataset.h"
#include "data/values/Texts.h"
#include "grid/filter/CellColumn.h"

#include <array>
#include <bit>

namespace {

/// Cells of one variable that hold the same bits show the same text.
std::uint64_t bitsOf(const CellValue& cell)
{
    const double* number = std::get_if<1>(&cell);
    return number != nullptr ? std::bit_cast<std::uint64_t>(*number)
                             : valuekey::of(cells::record(cell));
}

/// Of ASCII letters, as all others are QStringMatcher's.
void makeLettersSmall(std::string& text)
{
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
}

}  // namespace

CellSearch::CellSearch(const StatDataset& dataset, const QString& text)
    : m_dataset(dataset)
    , m_matcher(text, Qt::CaseInsensitive)
    , m_answers(static_cast<std::size_t>(dataset.variableCount()))
{
    if (texts::isAscii(text.toStdString())) {
        m_asciiText = text.toStdString();
        makeLettersSmall(m_asciiText);
    }
}

std::uint64_t CellSearch::word(int variable, std::span<const std::uint32_t> observations)
{
    const CellColumn cells(m_dataset, variable);
    std::array<std::uint64_t, 64> keys;
    for (std::size_t i = 0; i < observations.size(); ++i) {
        keys[i] = bitsOf(*cells.at(observations[i]));
    }
    return m_answers[static_cast<std::size_t>(variable)].word(
        {keys.data(), observations.size()},
        [&](std::size_t i) { return isShown(variable, observations[i]); });
}

bool CellSearch::isShown(int variable, std::uint32_t observation) const
{
    std::string shown = m_dataset.cellText(static_cast<int>(observation), variable);
    if (!m_asciiText.empty() && texts::isAscii(shown)) {
        makeLettersSmall(shown);
        return shown.find(m_asciiText) != std::string::npos;
    }
    return m_matcher.indexIn(QString::fromStdString(shown)) >= 0;
}
