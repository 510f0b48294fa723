#pragma once

#include <filesystem>
#include <string>

namespace fuzz {

/// Opens the file, its description alone and as a whole, and every dataset in it; reads whatever
/// can be read of them.
/// @return  which promise of the readers is broken; empty when none is. A file that is refused with
///          a message keeps the promise.
[[nodiscard]] std::string brokenPromise(const std::filesystem::path& path);

}  // namespace fuzz
