#include "grid/filter/TextAnswers.h"

#include "data/cells/ValueKey.h"

#include <array>
#include <utility>

TextAnswers::TextAnswers(std::function<bool(std::string_view)> question)
    : m_question(std::move(question))
{ }

std::uint64_t TextAnswers::word(std::span<const std::uint64_t> keys)
{
    std::array<std::uint32_t, 64> codes;
    if (remembersMore()) {
        m_coder.encode(keys, codes.data());
    } else {
        m_coder.lookUp(keys, codes.data());
    }
    m_asked += keys.size();
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        bits |= static_cast<std::uint64_t>(answer(keys[i], codes[i])) << i;
    }
    return bits;
}

bool TextAnswers::remembersMore() const
{
    // Where hardly any text occurs twice, looking it up costs more than asking again.
    constexpr std::size_t alwaysKept = 65536;
    return m_answers.size() < alwaysKept || m_answers.size() < m_asked / 2;
}

bool TextAnswers::answer(std::uint64_t key, std::uint32_t code)
{
    if (code < m_answers.size()) {
        return m_answers[code] != 0;
    }
    const bool holds = m_question(valuekey::text(key));
    if (code == m_answers.size()) {
        m_answers.push_back(holds ? 1 : 0);
    }
    return holds;
}
