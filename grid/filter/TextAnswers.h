#pragma once

#include "data/cells/KeyCoder.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

/// The answers to a yes-or-no question about the texts of one dataset. It is asked once for each
/// distinct text, as long as remembering the answers pays.
class TextAnswers
{
public:
    explicit TextAnswers(std::function<bool(std::string_view)> question);

    /// Bit i is the answer for the text of key i (valuekey::of its record).
    /// @param keys  up to 64
    [[nodiscard]] std::uint64_t word(std::span<const std::uint64_t> keys);

private:
    [[nodiscard]] bool remembersMore() const;
    [[nodiscard]] bool answer(std::uint64_t key, std::uint32_t code);

    std::function<bool(std::string_view)> m_question;
    KeyCoder m_coder;
    std::vector<char> m_answers;  ///< one for each code
    std::size_t m_asked = 0;
};
