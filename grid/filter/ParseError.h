#pragma once

#include <stdexcept>

/// The user's command text is wrong; what() says why, in one of the fixed English messages.
class ParseError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;

    /// Something follows what was asked for.
    [[nodiscard]] static ParseError trailingText()
    {
        return ParseError("unexpected trailing text");
    }
};
