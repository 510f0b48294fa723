#pragma once

#include <csv.h>

#include <cstdint>
#include <exception>
#include <string_view>

/// What hears of the fields of a CSV file. Both may throw.
class CsvSink
{
public:
    virtual ~CsvSink() = default;
    /// The next field of a record, without the quotes around it.
    virtual void field(std::string_view text) = 0;
    /// The end of a record; a blank line is none.
    virtual void endRecord() = 0;
};

/// Takes a CSV text apart, part by part, and counts its lines.
class CsvTokens
{
public:
    enum class Quotes
    {
        Strict,  ///< a quote that is neither around a field nor doubled in one is an error
        Lenient,  ///< it is a letter like any other
    };

    /// The sink outlives the tokens.
    CsvTokens(char delimiter, Quotes quotes, CsvSink& sink);
    ~CsvTokens();
    CsvTokens(const CsvTokens&) = delete;
    CsvTokens& operator=(const CsvTokens&) = delete;

    /// Takes the next part of the text; false at a quote that is out of place. Throws what the sink
    /// has thrown, and std::bad_alloc.
    [[nodiscard]] bool add(std::string_view part);
    /// Ends the last record; false within quotes that are never closed.
    [[nodiscard]] bool finish();

    /// The line, from 1, in which the current record begins.
    [[nodiscard]] std::int64_t line() const { return m_recordLine; }
    /// The line in which the field begins that has not ended yet.
    [[nodiscard]] std::int64_t fieldLine() const { return m_line; }

private:
    static void onField(void* text, std::size_t size, void* context) noexcept;
    static void onRecord(int end, void* context) noexcept;

    template <typename Call>
    void hand(Call call) noexcept;
    void countLineEnd(int end);
    void check();

    csv_parser m_parser{};
    CsvSink& m_sink;
    std::int64_t m_line = 1;
    std::int64_t m_recordLine = 1;
    bool m_hasFields = false;
    bool m_follows = false;  ///< whether nothing came after a carriage return that ended a line
    std::exception_ptr m_thrown;  ///< by the sink; an exception must not unwind through C frames
};
