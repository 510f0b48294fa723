#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <string>
#include <string_view>

/// Takes the part before the separator off the text, or all of it.
inline std::string_view takePart(std::string_view& text, std::string_view separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + separator.size(), text.size()));
    return part;
}

inline void expectText(std::string (*formatNumeric)(double, std::string_view),
                       std::string_view format, std::string_view numberAndText)
{
    const std::string_view number = takePart(numberAndText, " = ");
    double value = 0;
    const auto end = std::from_chars(number.data(), number.data() + number.size(), value);
    ASSERT_EQ(end.ptr, number.data() + number.size()) << number;
    EXPECT_EQ(formatNumeric(value, format), numberAndText) << format << ' ' << value;
}

/// Compares a rendering with a table of formats, each with numbers and their texts, under headings.
///     # Halves are rounded away from zero
///     F8.0 | 0.5 = 1 | 2.5 = 3 || F8.1 | 7 = 7.0
inline void expectTexts(std::string (*formatNumeric)(double, std::string_view),
                        std::string_view table)
{
    int compared = 0;
    while (!table.empty()) {
        std::string_view line = takePart(table, "\n");
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (line.starts_with('#')) {
            continue;
        }
        while (!line.empty()) {
            std::string_view numbers = takePart(line, " || ");
            const std::string_view format = takePart(numbers, " | ");
            for (; !numbers.empty(); ++compared) {
                expectText(formatNumeric, format, takePart(numbers, " | "));
            }
        }
    }
    EXPECT_GT(compared, 0);
}
