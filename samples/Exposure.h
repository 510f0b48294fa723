#pragma once

#include "samples/Population.h"
#include "samples/Table.h"

#include <span>

namespace samples {

[[nodiscard]] Table exposure(std::span<const Subject> subjects, std::uint64_t seed);  ///< SDTM EX

}  // namespace samples
