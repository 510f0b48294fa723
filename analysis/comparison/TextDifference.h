#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace comparison {

/// Bytes of a text from one to behind another, whole UTF-8 characters.
struct TextRange
{
    std::size_t begin;
    std::size_t end;
    bool operator==(const TextRange&) const = default;
};

/// What only one of two texts has, ascending and apart from each other.
struct TextDifference
{
    std::vector<TextRange> base;
    std::vector<TextRange> compare;
};

/// The letters in which two UTF-8 texts differ. Short texts are aligned by their longest common
/// subsequence, unless that is little; of others everything between the common beginning and the
/// common end counts as different.
[[nodiscard]] TextDifference textDifference(std::string_view base, std::string_view compare);

}  // namespace comparison
