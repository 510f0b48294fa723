#pragma once

#include <stdexcept>

/// The user's command text is wrong; what() says why, in one of the fixed English messages.
class ParseError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;

    /// What is said where something follows what was asked for.
    static constexpr const char* trailingText = "unexpected trailing text";
};
