#pragma once

#include <QtGlobal>

#include <stdexcept>
#include <string>
#include <utility>

/// The user's command text is wrong; what() says why, in one of the fixed English messages.
class ParseError : public std::runtime_error
{
public:
    /// What is said where something follows what was asked for.
    static constexpr const char* trailingText = "unexpected trailing text";
    /// What is said where a command has nothing to act on.
    static constexpr const char* nothingOpen = "No dataset is open that this could act on.";
    /// The position of what stands nowhere in the text.
    static constexpr qsizetype nowhere = -1;

    /// @param position    where in the text, in UTF-16 units
    /// @param suggestion  what was meant instead, as it can be written there; empty if unknown
    explicit ParseError(const std::string& message, qsizetype position = nowhere,
                        std::string suggestion = {})
        : std::runtime_error(message)
        , m_position(position)
        , m_suggestion(std::move(suggestion))
    { }

    [[nodiscard]] qsizetype position() const noexcept { return m_position; }
    [[nodiscard]] const std::string& suggestion() const noexcept { return m_suggestion; }

private:
    qsizetype m_position;
    std::string m_suggestion;
};
