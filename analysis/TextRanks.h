#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// The places of texts in the order of their bytes.
struct TextRanks
{
    std::vector<std::uint32_t> ranks;  ///< one per text; equal texts have equal ranks
    std::uint32_t distinct = 0;  ///< ranks run from 0 to this, exclusive
};

/// Ranks texts bytewise: the first byte that differs decides as unsigned, and a text comes before
/// the longer ones that it begins. Takes time in proportion to the bytes that tell the texts apart.
[[nodiscard]] TextRanks rankTexts(std::span<const std::string_view> texts);
