#pragma once

#include "samples/Population.h"
#include "samples/Table.h"

#include <span>

namespace samples {

[[nodiscard]] Table analysisSubjects(std::span<const Subject> subjects);  ///< ADaM ADSL

}  // namespace samples
