#include "grid/filter/RememberedAnswers.h"

void RememberedAnswers::findCodes(std::span<const std::uint64_t> keys, std::uint32_t* codes)
{
    // Where hardly any value occurs twice, looking it up costs more than asking again.
    constexpr std::size_t alwaysKept = 65536;
    if (m_answers.size() < alwaysKept || m_answers.size() < m_asked / 2) {
        m_coder.encode(keys, codes);
    } else {
        m_coder.lookUp(keys, codes);
    }
    m_asked += keys.size();
}
