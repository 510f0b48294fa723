#include "grid/filter/CompiledCondition.h"

#include "grid/filter/ConditionCompiler.h"

#include <algorithm>

CompiledCondition::CompiledCondition(const ParsedCondition& condition, const StatDataset& dataset)
    : m_predicate(ConditionCompiler(dataset).compile(condition.tree))
    , m_observations(static_cast<std::size_t>(dataset.observationCount()))
{ }

CompiledCondition::CompiledCondition(QStringView conditionText, const StatDataset& dataset)
    : CompiledCondition(ConditionParser::parseAll(conditionText), dataset)
{ }

void CompiledCondition::select(BitVector& mask) const
{
    constexpr std::size_t wordBits = BitVector::bits_per_block;
    std::vector<std::uint64_t> words((m_observations + wordBits - 1) / wordBits);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t first = i * wordBits;
        words[i] = m_predicate->word(
            first, static_cast<unsigned>(std::min(wordBits, m_observations - first)));
    }
    mask.resize(m_observations);
    boost::from_block_range(words.begin(), words.end(), mask);
}
