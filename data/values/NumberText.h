#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Texts of numbers, the same in every locale. The functions that take a Buffer allocate nothing
/// and return a view into it. NaN and infinities give "nan", "inf" and "-inf" everywhere.
namespace numbertext {

/// More decimals than this are not written.
inline constexpr int maximumDecimals = 100;

/// Holds the longest text: a sign, 309 digits before the point, the point and all decimals.
using Buffer = std::array<char, 512>;

/// Fixed-point text; what is half-way between two texts goes to the even digit.
/// @param decimals  clamped to 0 ... maximumDecimals
[[nodiscard]] std::string_view fixed(double value, int decimals, Buffer& buffer);
[[nodiscard]] std::string fixed(double value, int decimals);

/// As fixed(), but what is exactly half-way goes away from zero: 0.125 becomes 0.13. A number that
/// only looks half-way, such as 1.005 (stored as slightly less), is rounded by its stored value.
[[nodiscard]] std::string_view fixedHalfAway(double value, int decimals, Buffer& buffer);

/// Text with an exponent of at least two digits, "1.23e+10".
/// @param decimals  digits after the point, clamped to 0 ... maximumDecimals
[[nodiscard]] std::string_view scientific(double value, int decimals, Buffer& buffer);

/// The fewest digits that read back to the same number; without exponent for zero and magnitudes
/// from 1e-5 up to 1e15. Zero has no sign.
[[nodiscard]] std::string_view shortest(double value, Buffer& buffer);
[[nodiscard]] std::string shortest(double value);

enum class LetterCase
{
    AsIs,
    Upper,
    Lower,
};

/// A text that is put together on the stack. What is beyond its capacity is dropped; users bound
/// their input so that nothing is.
class StackText
{
public:
    static constexpr std::size_t capacity = 1024;

    void append(char character);
    void append(std::string_view text, LetterCase letterCase = LetterCase::AsIs);

    /// Whole number with leading zeros up to minimumDigits; a minus sign does not count as a digit.
    void appendInteger(std::int64_t value, int minimumDigits = 1);

    /// Appends a number with a separator between groups of three digits before the point, none
    /// when it is '\0', and with a decimal point of its own.
    void appendGrouped(std::string_view number, char separator, char decimalPoint);

    void appendRepeated(char character, int count);

    [[nodiscard]] std::size_t size() const { return m_size; }
    [[nodiscard]] std::string_view view() const { return {m_characters.data(), m_size}; }

    /// The text without leading and trailing blanks.
    [[nodiscard]] std::string trimmed() const;

private:
    std::array<char, capacity> m_characters;  // not cleared: m_size says what is set
    std::size_t m_size = 0;
};

}  // namespace numbertext
