#pragma once

#include <QString>

#include <string>
#include <string_view>

/// File names are bytes, a QString is not: a name that is no valid UTF-8 would not survive the way
/// there and back. Its stray bytes travel as lone low surrogates (U+DC80 ... U+DCFF).
namespace filepath {

[[nodiscard]] QString fromBytes(std::string_view bytes);
/// The bytes for the system's calls; QFile::encodeName() for every name without stray bytes.
[[nodiscard]] std::string toBytes(const QString& path);
/// The last component, for messages; stray bytes as U+FFFD.
[[nodiscard]] std::string displayName(const QString& path);
/// The same without its last suffix.
[[nodiscard]] std::string baseName(const QString& path);

}  // namespace filepath
