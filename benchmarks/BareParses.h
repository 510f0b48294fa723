#pragma once

#include <readstat.h>

#include <functional>
#include <string>

/// The format libraries' own parses of whole files, with handlers that do nothing: what a load is
/// measured by. Each returns whether the file could be read.
namespace bareparses {

using ReadStatParse = readstat_error_t (*)(readstat_parser_t*, const char*, void*);

[[nodiscard]] std::function<bool(const std::string& path)> readStat(ReadStatParse parse);
[[nodiscard]] bool csv(const std::string& path);
/// Of a file packed by gzip, which librdata itself cannot read.
[[nodiscard]] bool r(const std::string& path);
/// Every value of every line, as the kind of value that it is.
[[nodiscard]] bool ndjson(const std::string& path);
/// The same of the one document that a .json file is.
[[nodiscard]] bool json(const std::string& path);

}  // namespace bareparses
