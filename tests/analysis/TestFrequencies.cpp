#include "analysis/Frequencies.h"
#include "data/InMemoryDataset.h"
#include "tests/support/ScriptedDataset.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>

namespace {

using Value = ScriptedDataset::Value;
using Rows = std::vector<std::vector<Value>>;
using Lines = std::vector<std::string>;
using Variables = std::vector<int>;

constexpr double missing = ScriptedDataset::missing;

// Results are compared as lines such as `"F",61:2`; a missing value is a star.

std::string written(double number)
{
    return std::isnan(number) ? "nan" : fmt::format("{}", number);
}

std::string line(const std::string& values, int count)
{
    return fmt::format("{}:{}", values, count);
}

Lines lines(const std::vector<WordsAndCounts>& results)
{
    Lines lines;
    for (const WordsAndCounts& result : results) {
        std::string values;
        for (std::size_t i = 0; i < result.values.size(); ++i) {
            const FreqValue& value = result.values[i];
            values += i == 0 ? "" : ",";
            values += value.index() == 0 ? "*"
                : value.index() == 1     ? fmt::format("\"{}\"", std::get<1>(value))
                                         : written(std::get<2>(value));
        }
        lines.push_back(line(values, result.count));
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

struct Column
{
    std::string name;
    TypeCode type;
};

std::unique_ptr<ScriptedDataset> datasetOf(const std::vector<Column>& columns, const Rows& rows)
{
    auto dataset = std::make_unique<ScriptedDataset>();
    for (const Column& column : columns) {
        dataset->variable(column.name, column.type);
    }
    dataset->rows(static_cast<int>(rows.size()),
                  [&](int row, int column) { return rows[std::size_t(row)][std::size_t(column)]; });
    return dataset;
}

std::unique_ptr<ScriptedDataset> columnOf(TypeCode type, const std::vector<Value>& values)
{
    Rows rows;
    for (const Value& value : values) {
        rows.push_back({value});
    }
    return datasetOf({{"X", type}}, rows);
}

using Key = std::vector<FreqValue>;

struct ComparisonCase
{
    const char* what;
    Key less;
    Key greater;
};

const ComparisonCase comparisonCases[] = {
    {"missing before text", {FreqValue()}, {""}},
    {"missing before number", {FreqValue()}, {-HUGE_VAL}},
    {"text before number", {"z"}, {missing}},
    {"texts by bytes", {"Z"}, {"a"}},
    {"bytes are unsigned", {"z"}, {"\xC3\xA4"}},
    {"a beginning of a text", {"ab"}, {"ab "}},
    {"numbers by size, not as texts", {9.0}, {10.0}},
    {"NaN below every number", {missing}, {-HUGE_VAL}},
    {"a later element", {"a", 1.0, "b"}, {"a", 1.0, "c"}},
    {"the first difference decides", {"a", 2.0}, {"b", 1.0}},
    {"after two NaN", {missing, "a"}, {-missing, "b"}},
    {"after both zeros", {0.0, "a"}, {-0.0, "b"}},
    {"a beginning of a key", {"a"}, {"a", FreqValue()}},
    {"the empty key", {}, {FreqValue()}},
};

TEST(Frequencies, comparesKeysByKindThenContent)
{
    for (const ComparisonCase& c : comparisonCases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(frequencies::compare(c.less, c.greater), std::weak_ordering::less);
        EXPECT_EQ(frequencies::compare(c.greater, c.less), std::weak_ordering::greater);
        EXPECT_EQ(frequencies::compare(c.less, c.less), std::weak_ordering::equivalent);
    }
}

struct PlainCase
{
    const char* what;
    TypeCode type;
    std::vector<Value> values;
    Lines expected;
};

const PlainCase plainCases[] = {
    {"missing numbers first",
     TypeCode::Double,
     {10.0, missing, 9.0, -missing, 10.0},
     {"*:2", "9:1", "10:2"}},
    {"texts bytewise and untrimmed",
     TypeCode::Character,
     {"b", "a ", "B", "a", "", "\xC3\xA4", "b", " "},
     {"\"\":1", "\" \":1", "\"B\":1", "\"a\":1", "\"a \":1", "\"b\":2", "\"\xC3\xA4\":1"}},
    {"numbers of both signs",
     TypeCode::Double,
     {2.0, -1.5, HUGE_VAL, -HUGE_VAL, 0.25, -10.0},
     {"-inf:1", "-10:1", "-1.5:1", "0.25:1", "2:1", "inf:1"}},
    {"numbers that look alike",
     TypeCode::Double,
     {0.1 + 0.2, 0.3, 0.3},
     {"0.3:2", "0.30000000000000004:1"}},
    {"both zeros are one value", TypeCode::Double, {-0.0, 0.0, -0.0}, {"0:3"}},
    {"a negative zero on its own", TypeCode::Double, {-0.0, 1.0, -0.0}, {"-0:2", "1:1"}},
    {"narrow numbers by size", TypeCode::Int8, {10.0, 9.0, missing}, {"*:1", "9:1", "10:1"}},
    {"reals of single precision", TypeCode::Float, {100.0, 20.0}, {"20:1", "100:1"}},
    {"no rows", TypeCode::Character, {}, {}},
};

TEST(Frequencies, countsTheValuesOfOneVariableInOrder)
{
    for (const PlainCase& c : plainCases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(plain(*columnOf(c.type, c.values), {0}), c.expected);
    }
}

TEST(Frequencies, countsCombinationsByTheFirstVariableAndThenTheSecond)
{
    const auto dataset =
        datasetOf({{"SEX", TypeCode::Character}, {"AGE", TypeCode::Double}},
                  {{"M", 40.0}, {"F", missing}, {"M", 9.0}, {"F", 61.0}, {"M", 40.0}});

    EXPECT_EQ(plain(*dataset, {0, 1}),
              (Lines{"\"F\",*:1", "\"F\",61:1", "\"M\",9:1", "\"M\",40:2"}));
    EXPECT_EQ(plain(*dataset, {1, 0}),
              (Lines{"*,\"F\":1", "9,\"M\":1", "40,\"M\":2", "61,\"F\":1"}));
    EXPECT_EQ(plain(*dataset, {0, 0}), (Lines{"\"F\",\"F\":2", "\"M\",\"M\":3"}));
    EXPECT_EQ(plain(*dataset, {}), Lines{":5"}) << "one combination of nothing";
}

TEST(Frequencies, takesOnlyRowsThatBothFiltersSelect)
{
    // Rows on both sides of a 64-bit word of the masks.
    Rows rows;
    for (int row = 0; row < 130; ++row) {
        rows.push_back({"S" + std::to_string(row), double(row)});
    }
    const auto dataset =
        datasetOf({{"USUBJID", TypeCode::Character}, {"N", TypeCode::Double}}, rows);
    dataset->libraryFilterMask().reset();
    for (const std::size_t row : {0U, 63U, 64U, 128U, 129U}) {
        dataset->libraryFilterMask().set(row);
    }
    dataset->datasetFilterMask().reset(64);
    dataset->datasetFilterMask().reset(128);

    EXPECT_EQ(plain(*dataset, {1}), (Lines{"0:1", "63:1", "129:1"}));
    EXPECT_EQ(distinct(*dataset, {1}), (Lines{"0:1", "63:1", "129:1"}));
    dataset->datasetFilterMask().reset();
    EXPECT_EQ(plain(*dataset, {1, 0}), Lines{});
    EXPECT_EQ(plain(*dataset, {}), Lines{});
    EXPECT_EQ(distinct(*dataset, {1, 0}), Lines{});
}

TEST(Frequencies, takesNullTextsForEmptyOnes)
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

TEST(Frequencies, countsSubjectsOncePerCombination)
{
    const auto dataset = datasetOf({{"USUBJID", TypeCode::Character},
                                    {"AETERM", TypeCode::Character},
                                    {"AESEV", TypeCode::Double}},
                                   {{"02", "RASH", 1.0},
                                    {"01", "RASH", 1.0},
                                    {"02", "RASH", 2.0},
                                    {"01", "RASH", 1.0},
                                    {"03", "COUGH", missing},
                                    {"03", "COUGH", -missing},
                                    {"03 ", "COUGH", missing}});

    EXPECT_EQ(distinct(*dataset, {1}), (Lines{"\"COUGH\":2", "\"RASH\":2"}));
    EXPECT_EQ(distinct(*dataset, {1, 2}),
              (Lines{"\"COUGH\",nan:2", "\"RASH\",1:2", "\"RASH\",2:1"}));
    EXPECT_EQ(distinct(*dataset, {2}), (Lines{"nan:2", "1:2", "2:1"})) << "NaN is a number here";
    EXPECT_EQ(distinct(*dataset, {0}), (Lines{"\"01\":1", "\"02\":1", "\"03\":1", "\"03 \":1"}));
    EXPECT_EQ(distinct(*dataset, {}), Lines{":4"});
}

TEST(Frequencies, findsTheSubjectVariableInAnyCaseOfAsciiLetters)
{
    const auto dataset =
        datasetOf({{"X", TypeCode::Double},
                   {"uSubJid", TypeCode::Character},
                   {"USUBJID", TypeCode::Character},
                   {"id\xC3\xA4", TypeCode::Character}},
                  {{missing, "1", "a", "p"}, {missing, "1", "b", "q"}, {missing, "2", "c", "q"}});

    EXPECT_EQ(frequencies::idVariable(*dataset, "usubjid"), 1) << "the first of that name";
    EXPECT_EQ(distinct(*dataset, {0}, "UsubjID"), Lines{"nan:2"});
    EXPECT_EQ(frequencies::idVariable(*dataset, "ID\xC3\xA4"), 3);
    EXPECT_EQ(frequencies::idVariable(*dataset, "ID\xC3\x84"), -1);
    EXPECT_EQ(frequencies::idVariable(*dataset, "USUBJI"), -1);
    EXPECT_EQ(frequencies::idVariable(*dataset, ""), -1);
    EXPECT_EQ(distinct(*dataset, {0}, "SUBJID"), Lines{"*:3"}) << "rows, and NaN is missing again";
}

TEST(Frequencies, tellsNumericSubjectsApartByTheirShownTexts)
{
    // This dataset shows six decimals.
    const auto dataset = datasetOf({{"USUBJID", TypeCode::Double}, {"X", TypeCode::Character}},
                                   {{1.00000001, "a"},
                                    {1.00000002, "a"},
                                    {2.0, "a"},
                                    {missing, "b"},
                                    {-missing, "b"},
                                    {1.00000001, "b"}});

    EXPECT_EQ(distinct(*dataset, {1}), (Lines{"\"a\":2", "\"b\":2"}));
}

TEST(Frequencies, haveNothingToCountWithoutValues)
{
    class : public StatDataset
    {
    public:
        void open()
        {
            setValuesWanted(false);
            resizeVariables(1);
            m_observationCount = 7;
            resizeBits();
        }
    } metadata;
    metadata.open();

    EXPECT_EQ(plain(metadata, {0}), Lines{});
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

/// The definition: an ordered map from the values of a row, which are missing (0), text (1) or
/// number (2), to a count.
struct Naive
{
    struct Element
    {
        int kind = 0;
        std::string text;
        double number = 0;

        bool operator<(const Element& other) const
        {
            if (kind != other.kind || kind == 0) {
                return kind < other.kind;
            }
            if (kind == 1) {
                return text < other.text;
            }
            return std::isnan(number) ? !std::isnan(other.number) : number < other.number;
        }
    };
    using Map = std::map<std::vector<Element>, int>;

    const StatDataset& dataset;
    const Variables& variables;

    [[nodiscard]] std::vector<Element> keyOf(int row, bool nanIsMissing) const
    {
        std::vector<Element> key;
        for (const int variable : variables) {
            if (!dataset.isNumeric(variable)) {
                key.push_back({1, dataset.stringValue(row, variable), 0});
                continue;
            }
            const double number = dataset.numericValue(row, variable);
            key.push_back({nanIsMissing && std::isnan(number) ? 0 : 2, {}, number});
        }
        return key;
    }

    [[nodiscard]] Lines count(std::optional<int> id) const
    {
        Map first;
        for (int row = 0; row < dataset.observationCount(); ++row) {
            const auto bit = static_cast<std::size_t>(row);
            if (dataset.libraryFilterMask()[bit] && dataset.datasetFilterMask()[bit]) {
                std::vector<Element> key = keyOf(row, !id.has_value());
                if (id) {
                    key.push_back({1,
                                   dataset.isNumeric(*id) ? dataset.cellText(row, *id)
                                                          : dataset.stringValue(row, *id),
                                   0});
                }
                ++first[key];
            }
        }
        if (!id) {
            return linesOf(first);
        }
        Map second;
        for (const auto& entry : first) {
            std::vector<Element> key = entry.first;
            key.pop_back();
            ++second[key];
        }
        return linesOf(second);
    }

    static Lines linesOf(const Map& map)
    {
        Lines lines;
        for (const auto& [key, count] : map) {
            std::string values;
            for (const Element& element : key) {
                values += &element == key.data() ? "" : ",";
                values += element.kind == 0 ? "*"
                    : element.kind == 1     ? '"' + element.text + '"'
                                            : written(element.number);
            }
            lines.push_back(line(values, count));
        }
        return lines;
    }
};

void expectAsDefined(const StatDataset& dataset, const Variables& variables)
{
    const Naive naive{dataset, variables};
    EXPECT_EQ(plain(dataset, variables), naive.count({}));
    for (const std::string name : {"V0", "v2", "V4"}) {
        SCOPED_TRACE("subjects by " + name);
        EXPECT_EQ(distinct(dataset, variables, name), naive.count(name[1] - '0'));
    }
}

void filterAtRandom(StatDataset& dataset, std::mt19937& random)
{
    for (std::size_t row = 0; row < dataset.libraryFilterMask().size(); ++row) {
        dataset.libraryFilterMask()[row] = random() % 8 != 0;
        dataset.datasetFilterMask()[row] = random() % 8 != 0;
    }
}

TEST(Frequencies, areThoseOfAnOrderedMap)
{
    const std::vector<Column> columns{{"V0", TypeCode::Character},
                                      {"V1", TypeCode::Double},
                                      {"V2", TypeCode::Double},
                                      {"V3", TypeCode::Int16},
                                      {"V4", TypeCode::Character}};
    const std::vector<Value> texts{"", "a", "ab", "a ", "\xC3\xA9", "B"};
    const std::vector<Value> numbers{missing, -missing, -1.0, 0.0, 1.0, 1.0000001, HUGE_VAL};
    std::mt19937 random(20251028);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        Rows rows;
        for (int row = round % 40; row > 0; --row) {
            std::vector<Value>& cells = rows.emplace_back();
            for (const Column& column : columns) {
                const auto& values = column.type == TypeCode::Character ? texts : numbers;
                cells.push_back(values[random() % values.size()]);
            }
        }
        const auto dataset = datasetOf(columns, rows);
        filterAtRandom(*dataset, random);
        Variables variables;
        for (std::size_t n = random() % 4; n > 0; --n) {
            variables.push_back(static_cast<int>(random() % columns.size()));
        }
        expectAsDefined(*dataset, variables);
    }
}

TEST(Frequencies, areThoseOfAnOrderedMapForManyDistinctValuesToo)
{
    std::mt19937 random(3);
    std::normal_distribution<double> normal(0.0, 1e3);
    Rows rows;
    for (int row = 0; row < 6000; ++row) {
        rows.push_back({"SUBJECT-" + std::to_string(random() % 4000), normal(random),
                        double(random() % 90), double(random() % 5000),
                        "term " + std::to_string(random() % 2500)});
    }
    const auto dataset = datasetOf({{"V0", TypeCode::Character},
                                    {"V1", TypeCode::Double},
                                    {"V2", TypeCode::Double},
                                    {"V3", TypeCode::Int32},
                                    {"V4", TypeCode::Character}},
                                   rows);
    filterAtRandom(*dataset, random);

    for (const Variables& variables :
         {Variables{0}, Variables{1}, Variables{2, 4}, Variables{4, 0, 3}, Variables{2, 1}}) {
        SCOPED_TRACE(testing::Message() << "by " << variables.size() << " variables");
        expectAsDefined(*dataset, variables);
    }
}

TEST(Frequencies, orderMoreCombinationsThan64BitsTell)
{
    // 2 x 3 x 5,000 x 10,000^4 of them. Pairs of rows are equal up to the third variable.
    constexpr int count = 10000;
    std::mt19937 random(5);
    std::vector<Column> columns(7);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i] = {"V" + std::to_string(i), TypeCode::Double};
    }
    Rows rows;
    for (int row = 0; row < count; ++row) {
        const int pair = row / 2;
        rows.push_back({double(pair % 2), double(pair % 3), double(pair)});
        for (int i = 3; i < 7; ++i) {
            rows.back().emplace_back(double((row * 7919 + i) % count));
        }
    }
    std::shuffle(rows.begin(), rows.end(), random);
    const auto dataset = datasetOf(columns, rows);

    expectAsDefined(*dataset, {0, 1, 2, 3, 4, 5, 6});
}

TEST(Frequencies, doNotDependOnTheOrderOfTheRows)
{
    Rows rows{{"1", -0.0, "a"},    {"1", 0.0, "a"},      {"2", -0.0, "b"},   {"2", missing, "b"},
              {"3", -missing, ""}, {"3", HUGE_VAL, "a"}, {"4", missing, "b"}};
    const std::vector<Column> columns{
        {"USUBJID", TypeCode::Character}, {"N", TypeCode::Double}, {"T", TypeCode::Character}};
    const auto first = datasetOf(columns, rows);
    std::mt19937 random(9);
    for (int round = 0; round < 20; ++round) {
        std::shuffle(rows.begin(), rows.end(), random);
        const auto dataset = datasetOf(columns, rows);
        EXPECT_EQ(plain(*dataset, {2, 1}), plain(*first, {2, 1}));
        EXPECT_EQ(distinct(*dataset, {1}), distinct(*first, {1}));
    }
}

}  // namespace
