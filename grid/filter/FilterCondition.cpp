#include "grid/filter/FilterCondition.h"

#include "grid/filter/ConditionCompiler.h"
#include "grid/filter/ConditionParser.h"

#include <algorithm>

namespace {

Result<ParsedCondition> parsed(QStringView text)
{
    try {
        return ConditionParser::parseAll(text);
    } catch (const ParseError& error) {
        return Failure{error.what()};
    }
}

}  // namespace

Result<FilterCondition> FilterCondition::compile(QStringView conditionText,
                                                 const StatDataset& dataset)
{
    const Result<ParsedCondition> condition = parsed(conditionText);
    if (!condition) {
        return Failure{condition.error()};
    }
    Result<RowTestPointer> test = ConditionCompiler(dataset).compile(condition.value().tree);
    if (!test) {
        return Failure{test.error()};
    }
    return FilterCondition(condition.value().text, condition.value().hasOuterOr,
                           std::move(test.value()),
                           static_cast<std::size_t>(dataset.observationCount()));
}

void FilterCondition::select(BitVector& mask) const
{
    constexpr std::size_t wordBits = BitVector::bits_per_block;
    std::vector<std::uint64_t> words((m_observations + wordBits - 1) / wordBits);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t first = i * wordBits;
        words[i] =
            m_test->word(first, static_cast<unsigned>(std::min(wordBits, m_observations - first)));
    }
    mask.resize(m_observations);
    boost::from_block_range(words.begin(), words.end(), mask);
}
