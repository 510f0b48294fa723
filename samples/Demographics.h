#pragma once

#include "samples/Population.h"
#include "samples/Table.h"

#include <span>

namespace samples {

[[nodiscard]] Table demographics(std::span<const Subject> subjects);  ///< SDTM DM
[[nodiscard]] Table demographicsQualifiers(std::span<const Subject> subjects,
                                           std::uint64_t seed);  ///< SDTM SUPPDM

/// The ten columns that every SUPP-- dataset has.
[[nodiscard]] std::vector<Column> qualifierColumns();

}  // namespace samples
