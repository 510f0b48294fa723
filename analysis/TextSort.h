#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// The places of different texts in the order of their bytes: the first byte that differs decides
/// as unsigned, and a text comes before the longer ones that it begins. Takes time in proportion to
/// the bytes that tell the texts apart. Equal texts come in any order.
[[nodiscard]] std::vector<std::uint32_t> orderOf(std::span<const std::string_view> texts);
