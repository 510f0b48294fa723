#include "grid/filter/TextAnswers.h"

#include "data/cells/ValueKey.h"

#include <utility>

TextAnswers::TextAnswers(std::function<bool(std::string_view)> question)
    : m_question(std::move(question))
{ }

std::uint64_t TextAnswers::word(std::span<const std::uint64_t> keys)
{
    return m_answers.word(keys, [&](std::size_t i) { return m_question(valuekey::text(keys[i])); });
}
