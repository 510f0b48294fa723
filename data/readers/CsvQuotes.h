#pragma once

#include <string>
#include <string_view>

/// Puts right the quotes of a CSV text that end before their field does, which the library would
/// read far beyond it: "x"y becomes "xy". As spreadsheets read them, what follows up to the next
/// delimiter belongs to the field, and further quotes in it are letters.
class CsvQuotes
{
public:
    explicit CsvQuotes(char delimiter)
        : m_delimiter(delimiter)
    { }

    /// The next part of the text, put right; good until the next call. Whether a quote at the very
    /// end of a part closes its field is told by the next part.
    [[nodiscard]] std::string_view repaired(std::string_view part);
    /// What was kept back at the end of the text.
    [[nodiscard]] std::string_view rest();
    /// Whether a quote had to be put right.
    [[nodiscard]] bool hadEarlyQuotes() const { return m_hadEarlyQuotes; }

private:
    enum class State
    {
        FieldStart,
        Bare,  ///< in a field without quotes around it
        Quoted,
        QuoteSeen,  ///< in a quoted field, which may end here
        Behind,  ///< behind the quote that should have ended the field
    };

    void add(char letter);
    [[nodiscard]] bool endsField(char letter) const
    {
        return letter == m_delimiter || letter == '\n' || letter == '\r';
    }

    char m_delimiter;
    State m_state = State::FieldStart;
    std::string m_part;
    bool m_hadEarlyQuotes = false;
};
