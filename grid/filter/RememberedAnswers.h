#pragma once

#include "data/cells/KeyCoder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// The answers to a yes-or-no question about values. It is asked once for each distinct one, as
/// long as remembering the answers pays.
class RememberedAnswers
{
public:
    /// Bit i is the answer for key i. Equal keys have one answer.
    /// @param keys  up to 64
    /// @param ask   called with i where the answer for key i is not known
    template <typename Ask>
    [[nodiscard]] std::uint64_t word(std::span<const std::uint64_t> keys, Ask ask)
    {
        std::array<std::uint32_t, 64> codes;
        findCodes(keys, codes.data());
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            bits |= static_cast<std::uint64_t>(answer(codes[i], i, ask)) << i;
        }
        return bits;
    }

private:
    void findCodes(std::span<const std::uint64_t> keys, std::uint32_t* codes);
    template <typename Ask>
    [[nodiscard]] bool answer(std::uint32_t code, std::size_t i, Ask& ask)
    {
        if (code < m_answers.size()) {
            return m_answers[code] != 0;
        }
        const bool holds = ask(i);
        if (code == m_answers.size()) {
            m_answers.push_back(holds ? 1 : 0);
        }
        return holds;
    }

    KeyCoder m_coder;
    std::vector<char> m_answers;  ///< one for each code
    std::size_t m_asked = 0;
};
