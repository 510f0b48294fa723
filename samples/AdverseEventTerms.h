#pragma once

#include <array>
#include <span>

namespace samples {

/// An event as the dictionary knows it and as investigators write it.
struct EventTerm
{
    const char* decoded;
    const char* bodySystem;
    std::array<const char*, 3> reported;
};

[[nodiscard]] std::span<const EventTerm> eventTerms();

/// What may kill; only for the events that do.
[[nodiscard]] std::span<const EventTerm> fatalTerms();

/// Sentences that an investigator's comment is made of.
[[nodiscard]] std::span<const char* const> commentSentences();

}  // namespace samples
