#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Gives every name that an earlier one equals a suffix, "AGE_2", "AGE_3", with which it equals
/// none of the others. Names that differ in letter case only are not equal.
/// @return  the places of the names that were changed, ascending
std::vector<std::size_t> makeDistinct(std::vector<std::string>& names);
