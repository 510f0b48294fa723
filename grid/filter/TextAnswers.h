#pragma once

#include "grid/filter/RememberedAnswers.h"

#include <functional>
#include <string_view>

/// The answers to a yes-or-no question about the texts of one dataset.
class TextAnswers
{
public:
    explicit TextAnswers(std::function<bool(std::string_view)> question);

    /// Bit i is the answer for the text of key i (valuekey::of its record).
    /// @param keys  up to 64
    [[nodiscard]] std::uint64_t word(std::span<const std::uint64_t> keys);

private:
    std::function<bool(std::string_view)> m_question;
    RememberedAnswers m_answers;
};
