#pragma once

#include "data/readers/UnpackedFile.h"

/// The ways of packing, each behind its library.
namespace unpackers {

[[nodiscard]] std::unique_ptr<Unpacker> gzip();
[[nodiscard]] std::unique_ptr<Unpacker> bzip2();
[[nodiscard]] std::unique_ptr<Unpacker> xz();

}  // namespace unpackers
