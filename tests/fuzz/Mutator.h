#pragma once

#include "samples/Random.h"
#include "tests/fuzz/Corpus.h"

#include <cstdint>
#include <string>

namespace fuzz {

/// A damaged file: what it is called, and what is in it.
struct Mutant
{
    std::string origin;  ///< name of the file it was made from
    std::string suffix;
    std::string bytes;
};

/// Damages files of a corpus. The same seed and number give the same mutant.
class Mutator
{
public:
    /// The corpus outlives the mutator and is not empty.
    Mutator(const Corpus& corpus, std::uint64_t seed)
        : m_corpus(corpus)
        , m_seed(seed)
    { }

    [[nodiscard]] Mutant mutant(std::uint64_t number) const;

private:
    const Corpus& m_corpus;
    std::uint64_t m_seed;
};

}  // namespace fuzz
