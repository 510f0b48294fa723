#include "analysis/Frequencies.h"
#include "data/InMemoryDataset.h"
#include "tests/analysis/RandomDatasets.h"
#include "tests/analysis/ValueOrder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <optional>
#include <set>

namespace {

using Lines = std::vector<std::string>;
using Variables = std::vector<int>;

constexpr double missing = ScriptedDataset::missing;

// Results are compared as lines such as `"F",61:2`; a missing value is a star.

std::string written(std::monostate)
{
    return "*";
}
std::string written(std::string_view text)
{
    return fmt::format("\"{}\"", text);
}
std::string written(double number)
{
    return std::isnan(number) ? "nan" : fmt::format("{}", number);
}

template <typename Values>
std::string line(const Values& values, std::size_t count)
{
    Lines texts;
    for (const auto& value : values) {
        texts.push_back(std::visit([](const auto& content) { return written(content); }, value));
    }
    return fmt::format("{}:{}", fmt::join(texts, ","), count);
}

Lines lines(const std::vector<WordsAndCounts>& results)
{
    Lines lines;
    for (const WordsAndCounts& result : results) {
        lines.push_back(line(result.values, static_cast<std::size_t>(result.count)));
    }
    return lines;
}

Lines plain(const StatDataset& dataset, const Variables& variables)
{
    return lines(frequencies::plain(dataset, variables));
}

Lines distinct(const StatDataset& dataset, const Variables& variables,
               const std::string& idName = "USUBJID")
{
    return lines(frequencies::distinctIds(dataset, variables, idName));
}

/// The definition: an ordered map from the values of a row to the subjects that have them. The
/// negative zero is written where no row holds the positive one.
class OrderedMap
{
public:
    OrderedMap(const StatDataset& dataset, const Variables& variables)
        : m_dataset(dataset)
        , m_variables(variables)
        , m_rows(plainlySelected(dataset))
        , m_zeros(variables.size(), -0.0)
    {
        for (const int row : m_rows) {
            const PlainKey key = plainKey(dataset, variables, row);
            for (std::size_t i = 0; i < key.size(); ++i) {
                const auto* number = std::get_if<double>(&key[i]);
                if (number != nullptr && *number == 0.0 && !std::signbit(*number)) {
                    m_zeros[i] = 0.0;
                }
            }
        }
    }

    [[nodiscard]] Lines count(std::optional<int> id) const
    {
        std::map<PlainKey, std::multiset<std::string>, PlainKeyOrder> subjects;
        for (const int row : m_rows) {
            subjects[keyOf(row, !id.has_value())].insert(id ? subjectOf(row, *id) : std::string());
        }
        Lines lines;
        for (const auto& [key, ids] : subjects) {
            const std::set<std::string> distinctIds(ids.begin(), ids.end());
            lines.push_back(line(key, id ? distinctIds.size() : ids.size()));
        }
        return lines;
    }

private:
    [[nodiscard]] PlainKey keyOf(int row, bool nanIsMissing) const
    {
        PlainKey key = plainKey(m_dataset, m_variables, row);
        for (std::size_t i = 0; i < key.size(); ++i) {
            if (auto* number = std::get_if<double>(&key[i])) {
                *number = *number == 0.0 ? m_zeros[i] : *number;
                key[i] = nanIsMissing && std::isnan(*number) ? PlainValue() : key[i];
            }
        }
        return key;
    }
    [[nodiscard]] std::string subjectOf(int row, int id) const
    {
        return m_dataset.isNumeric(id) ? m_dataset.cellText(row, id)
                                       : m_dataset.stringValue(row, id);
    }

    const StatDataset& m_dataset;
    Variables m_variables;
    std::vector<int> m_rows;
    std::vector<double> m_zeros;
};

void expectAsDefined(const StatDataset& dataset, const Variables& variables)
{
    SCOPED_TRACE(fmt::format("by variables {}", fmt::join(variables, ",")));
    const OrderedMap map(dataset, variables);
    EXPECT_EQ(plain(dataset, variables), map.count({}));
    for (const std::string name : {"V0", "v3", "V5"}) {
        EXPECT_EQ(distinct(dataset, variables, name), map.count(name[1] - '0')) << name;
    }
}

TEST(Frequencies, areThoseOfAnOrderedMap)
{
    std::mt19937 random(20251028);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        const auto dataset = randomdatasets::ofFewValues(SourceKind::Sas, random, round % 40);
        Variables variables;
        for (std::size_t n = random() % 4; n > 0; --n) {
            variables.push_back(static_cast<int>(random() % 7));
        }
        expectAsDefined(*dataset, variables);
    }
}

TEST(Frequencies, areThoseOfAnOrderedMapForManyValuesToo)
{
    std::mt19937 random(3);
    const auto dataset = randomdatasets::ofManyValues(SourceKind::Sas, random);

    for (const Variables& variables :
         {Variables{0}, Variables{5}, Variables{2, 6}, Variables{6, 0, 3}, Variables{2, 5}}) {
        expectAsDefined(*dataset, variables);
    }
    // More combinations than 64 bits can number: 3 x 4,000 x 2,500 x 5,000^3 x 6,000.
    expectAsDefined(*dataset, {2, 0, 1, 3, 4, 6, 5});
}

TEST(Frequencies, takeNullTextsForEmptyOnes)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "USUBJID", .type = TypeCode::Character});
    builder.addVariable({.name = "T", .type = TypeCode::Character}).addVariable({.name = "N"});
    builder.addNullText().addNullText().addMissing();
    builder.addText("").addText("").addNumber(3);
    builder.addText("A").addNullText().addMissing();
    const auto dataset = builder.build();

    EXPECT_EQ(plain(*dataset, {1}), Lines{"\"\":3"});
    EXPECT_EQ(plain(*dataset, {2}), (Lines{"*:2", "3:1"})) << "its missing marker";
    EXPECT_EQ(distinct(*dataset, {1}), Lines{"\"\":2"});

    InMemoryDatasetBuilder nulls;
    nulls.addVariable({.name = "T", .type = TypeCode::Character}).addNullText().addNullText();
    EXPECT_EQ(plain(*nulls.build(), {0}), Lines{"\"\":2"}) << "without a pooled empty text";
}

TEST(Frequencies, findTheSubjectVariableInAnyCaseOfAsciiLetters)
{
    ScriptedDataset dataset;
    dataset.variable("X", TypeCode::Double)
        .variable("uZabJid", TypeCode::Character)
        .variable("UZABJID", TypeCode::Character)
        .variable("id\xC3\xA4", TypeCode::Character);
    dataset.row({missing, "1", "a", "p"})
        .row({missing, "1", "b", "p"})
        .row({missing, "2", "c", "p"});

    EXPECT_EQ(distinct(dataset, {0}, "UzabjID"), Lines{"nan:2"}) << "the first of that name";
    EXPECT_EQ(distinct(dataset, {0}, "ID\xC3\xA4"), Lines{"nan:1"});
    for (const char* other : {"ID\xC3\x84", "UZABJI", "ZABJID", ""}) {
        EXPECT_EQ(distinct(dataset, {0}, other), Lines{"*:3"}) << "rows without " << other;
    }
}

TEST(Frequencies, showValuesByTheFormatOfTheirVariable)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "DT", .format = "DATE", .width = 9});
    builder.addVariable({.name = "T", .type = TypeCode::Character});
    builder.addVariable({.name = "N", .decimals = 2});
    const auto dataset = builder.build();

    EXPECT_EQ(frequencies::displayText(*dataset, 0, 1.0), "02Jan1960");
    EXPECT_EQ(frequencies::displayText(*dataset, 0, FreqValue()), "N/A");
    EXPECT_EQ(frequencies::displayText(*dataset, 0, "x"), "Error");
    EXPECT_EQ(frequencies::displayText(*dataset, 1, " a "), " a ") << "texts as they are";
    EXPECT_THROW((void)frequencies::displayText(*dataset, 1, 1.0), std::bad_variant_access);
    EXPECT_EQ(frequencies::displayText(*dataset, 2, 0.5), "0.50");
    EXPECT_EQ(frequencies::displayText(*dataset, 2, InMemoryDataset::missing), ".");

    class : public ScriptedDataset
    {
        [[nodiscard]] std::string formatNumeric(double, std::string_view, int, int) const override
        {
            return "   7 ";
        }
    } padding;
    padding.variable("N", TypeCode::Double);
    EXPECT_EQ(frequencies::displayText(padding, 0, 7.0), "7");
}

/// The lines in the order of a column's sort keys.
Lines sorted(const StatDataset& dataset, const Variables& variables, std::size_t column)
{
    const auto results = frequencies::plain(dataset, variables);
    const auto keys = frequencies::sortKeys(dataset, results, variables, column);
    std::vector<std::size_t> order(results.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return keys.at(a) < keys.at(b); });
    Lines sorted;
    for (const std::size_t place : order) {
        sorted.push_back(lines(results).at(place));
    }
    return sorted;
}

TEST(Frequencies, areSortedByNumbersAndOtherwiseByTheirTexts)
{
    class : public ScriptedDataset
    {
        [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int,
                                                int) const override
        {
            return format.empty() ? fmt::format("{}", number) : number < 9 ? "Friday" : "Sunday";
        }

    public:
        void format() { m_formats[1] = "DAY"; }
    } dataset;
    dataset.variable("T", TypeCode::Character).variable("N", TypeCode::Double);
    for (int i = 0; i < 10; ++i) {
        dataset.row({"b", 10.0});
    }
    dataset.row({"a", 9.0}).row({"", -0.0}).row({"b", missing}).row({"B", missing});
    dataset.row({"a", 9.0}).row({"", 0.0}).row({"b", -5.0}).row({"c", -5.0});
    const Lines byNumber{"\"b\",-5:1", "\"c\",-5:1", "\"\",0:2", "\"a\",9:2", "\"b\",10:10"};
    Lines missingLast = byNumber;
    missingLast.insert(missingLast.end(), {"\"B\",*:1", "\"b\",*:1"});
    EXPECT_EQ(sorted(dataset, {0, 1}, 1), missingLast) << "after the digits";
    EXPECT_EQ(sorted(dataset, {1}, 1), (Lines{"10:10", "*:2", "-5:2", "0:2", "9:2"}));
    EXPECT_EQ(sorted(dataset, {1, 0}, 1).front(), "0,\"\":2");
    EXPECT_EQ(sorted(dataset, {1, 0}, 1).at(1), "*,\"B\":1");
    EXPECT_EQ(sorted(dataset, {1, 0}, 1).back(), "-5,\"c\":1");
    dataset.format();
    Lines missingAmongThem = byNumber;
    missingAmongThem.insert(missingAmongThem.begin() + 3, {"\"B\",*:1", "\"b\",*:1"});
    EXPECT_EQ(sorted(dataset, {0, 1}, 1), missingAmongThem);
}

}  // namespace
