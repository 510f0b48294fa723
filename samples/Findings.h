#pragma once

#include "samples/Population.h"
#include "samples/Table.h"

#include <span>

namespace samples {

[[nodiscard]] Table laboratory(std::span<const Subject> subjects, std::uint64_t seed);  ///< SDTM LB
[[nodiscard]] Table vitalSigns(std::span<const Subject> subjects, std::uint64_t seed);  ///< SDTM VS

}  // namespace samples
