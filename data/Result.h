#pragma once

#include <string>
#include <utility>
#include <variant>

/// Why something could not be done, as a sentence for the user that names the file or variable.
struct Failure
{
    std::string text;
};

/// A value, or the reason why there is none.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_state(std::in_place_index<0>, std::move(value))
    { }
    Result(Failure failure)
        : m_state(std::in_place_index<1>, std::move(failure))
    { }

    [[nodiscard]] bool ok() const { return m_state.index() == 0; }
    explicit operator bool() const { return ok(); }

    /// The value; asking a failure for it is a programming error (std::bad_variant_access).
    [[nodiscard]] T& value() { return std::get<0>(m_state); }
    [[nodiscard]] const T& value() const { return std::get<0>(m_state); }
    /// The reason; asking a value for it is a programming error (std::bad_variant_access).
    [[nodiscard]] const std::string& error() const { return std::get<1>(m_state).text; }

private:
    std::variant<T, Failure> m_state;
};
