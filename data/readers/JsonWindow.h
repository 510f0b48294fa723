#pragma once

#include "data/readers/JsonInput.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The part of a JSON text that is being read: a buffer that moves along the input and grows only
/// where a single value asks for it. All functions throw std::runtime_error where the file is cut
/// or damaged.
class JsonWindow
{
public:
    /// The input outlives the window.
    explicit JsonWindow(JsonInput& input);

    /// Starts anew, that many bytes behind the start of the text.
    void restart(std::int64_t offset);

    /// Sees to it that so many bytes are at hand; false where the text ends before.
    bool have(std::size_t bytes);
    /// Reads a further part; false where there is none.
    bool haveMore();
    /// What is at hand and not passed yet. There is a byte before it that may be written, and so
    /// may `margin` bytes behind it.
    [[nodiscard]] char* data() { return m_buffer.data() + m_start; }
    [[nodiscard]] std::size_t size() const { return m_end - m_start; }
    [[nodiscard]] std::string_view text() const { return {m_buffer.data() + m_start, size()}; }
    /// Whether the text ends with what is at hand.
    [[nodiscard]] bool isLast() const { return m_inputEnded; }
    void pass(std::size_t bytes);
    /// How many bytes have been passed.
    [[nodiscard]] std::int64_t offset() const { return m_offset; }

    /// The line, from 1, that the place is in; right while nothing but next() and passValue() with
    /// a copy has passed anything.
    [[nodiscard]] std::int64_t line() const { return m_line; }

    /// Passes blanks; the next character, or '\0' at the end.
    char next();
    /// Passes one value, and appends it to `copy` unless that is null.
    void passValue(std::string* copy);

    static constexpr std::size_t usualBytes = std::size_t{512} << 10;
    static constexpr std::size_t margin = 128;
    /// The longest value that is kept as a whole.
    static constexpr std::size_t mostBytes = std::size_t{64} << 20;

private:
    JsonInput& m_input;
    std::vector<char> m_buffer;
    std::size_t m_start = 1;
    std::size_t m_end = 1;
    std::int64_t m_offset = 0;
    std::int64_t m_line = 1;
    bool m_inputEnded = false;
};
