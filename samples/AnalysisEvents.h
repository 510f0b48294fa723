#pragma once

#include "samples/AdverseEvents.h"

namespace samples {

[[nodiscard]] Table analysisEvents(std::span<const AdverseEvent> events);  ///< ADaM ADAE

}  // namespace samples
