#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the rows of a Dataset-JSON file hold against its own description, gathered while they are
/// read and told once a kind: which variables, how many values, and the first of them.
class DatasetJsonOddities
{
public:
    enum class Kind
    {
        NoNumber,
        NoDate,
        NestedValue,
        NoFiniteNumber,
        TooManyDigits,
        TooLarge,
        PassedOverOffset,
        ShortRow,
        LongRow,
        NoRow,
        UnknownMember,
        InvalidText,
        // Of the following only the log tells: no value differs from what the file says.
        Fraction,
        NumberAsText,
        PlainAsText,
        BooleanAsNumber,
    };

    /// @param column   -1 where it is the whole row
    /// @param example  what the file has there
    void add(Kind kind, std::int64_t row, int column, std::string_view example = {},
             std::uint64_t count = 1);

    /// A sentence for each kind that changes or leaves out something of the file.
    [[nodiscard]] std::vector<std::string> notes(const std::vector<std::string>& names) const;
    /// A sentence for each of the other kinds.
    [[nodiscard]] std::vector<std::string> remarks(const std::vector<std::string>& names) const;

private:
    struct Found
    {
        std::uint64_t count = 0;
        std::int64_t row = 0;  ///< of the first
        std::string example;
    };

    [[nodiscard]] std::vector<std::string> sentences(const std::vector<std::string>& names,
                                                     Kind from, Kind upTo) const;
    [[nodiscard]] std::string sentence(Kind kind, const std::vector<std::string>& names) const;

    std::map<std::pair<Kind, int>, Found> m_found;
};
