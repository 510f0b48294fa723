#pragma once

#include <string>
#include <string_view>

namespace cli {

/// What --help prints of a command, or of the program where the name is none of a command.
[[nodiscard]] std::string helpOf(std::string_view command);

}  // namespace cli
