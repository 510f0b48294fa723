#include "analysis/RowSorter.h"
#include "data/InMemoryDataset.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

namespace {

using Rows = std::vector<std::uint32_t>;
using Value = ScriptedDataset::Value;

constexpr double missing = ScriptedDataset::missing;
constexpr double naInteger = -2147483648.0;
constexpr auto up = Qt::AscendingOrder;
constexpr auto down = Qt::DescendingOrder;

Rows sorted(const StatDataset& dataset, const SortKeys& keys)
{
    Rows rows;
    rowsorter::sortObservations(dataset, keys, rows);
    return rows;
}

/// A dataset of one variable that holds the values, one a row.
std::unique_ptr<ScriptedDataset> column(SourceKind kind, TypeCode type,
                                        const std::vector<Value>& values)
{
    auto dataset = std::make_unique<ScriptedDataset>(kind);
    dataset->variable("X", type);
    for (const Value& value : values) {
        dataset->row({value});
    }
    return dataset;
}

struct PairCase
{
    const char* what;
    SourceKind kind;
    TypeCode type;
    Value a;
    Value b;
    // Whether a goes before b and b before a, ascending and then descending.
    bool abUp, baUp, abDown, baDown;
};

const PairCase pairCases[] = {
    {"numbers", SourceKind::Sas, TypeCode::Double, -1.0, 2.0, true, false, false, true},
    {"both zeros", SourceKind::Sas, TypeCode::Double, -0.0, 0.0, false, false, false, false},
    {"missing", SourceKind::Sas, TypeCode::Double, missing, 2.0, false, false, false, false},
    {"two missing", SourceKind::Stata, TypeCode::Double, missing, missing, false, false, false,
     false},
    {"minus infinity", SourceKind::Csv, TypeCode::Double, -HUGE_VAL, -9e9, true, false, false,
     true},
    {"unsigned bytes", SourceKind::Sas, TypeCode::Character, "z", "\xC3\xA4", true, false, false,
     true},
    {"a beginning", SourceKind::Sas, TypeCode::Character, "ab", "abc", true, false, false, true},
    {"trailing blank", SourceKind::Sas, TypeCode::Character, "a", "a ", true, false, false, true},
    {"N/A outside R", SourceKind::Sas, TypeCode::Character, "N/A", "Z", true, false, false, true},
    {"int16 as text", SourceKind::Stata, TypeCode::Int16, 10.0, 9.0, true, false, false, true},
    {"float as text", SourceKind::Stata, TypeCode::Float, missing, -1.0, false, true, true, false},
    {"N/A in R", SourceKind::R, TypeCode::Character, "N/A", "Z", false, true, false, true},
    {"two N/A in R", SourceKind::R, TypeCode::Character, "N/A", "N/A", false, false, false, false},
    {"N/A begins in R", SourceKind::R, TypeCode::Character, "N/AB", "Z", true, false, false, true},
    {"NaN in R", SourceKind::R, TypeCode::Double, missing, 1e300, false, true, false, true},
    {"NaN and infinity in R", SourceKind::R, TypeCode::Float, missing, HUGE_VAL, false, false,
     false, true},
    {"int16 in R", SourceKind::R, TypeCode::Int16, 10.0, 9.0, false, true, true, false},
    {"int16 fraction in R", SourceKind::R, TypeCode::Int16, 1.5, 1.0, false, true, true, false},
    {"int32 in R", SourceKind::R, TypeCode::Int32, 10.0, 9.0, false, true, true, false},
    {"int32 fraction in R", SourceKind::R, TypeCode::Int32, 1.5, 1.0, false, false, false, false},
    {"NA integer in R", SourceKind::R, TypeCode::Int32, naInteger, 5.0, false, true, false, true},
    {"NA int8 in R", SourceKind::R, TypeCode::Int8, naInteger, -5.0, false, true, false, true},
    {"NA and largest in R", SourceKind::R, TypeCode::Int32, naInteger, 2147483647.0, false, false,
     false, true},
    {"int16 has no NA in R", SourceKind::R, TypeCode::Int16, naInteger, 5.0, true, false, false,
     true},
    {"unknown type in R", SourceKind::R, TypeCode{9}, 1.0, 2.0, false, false, false, false},
};

TEST(RowSorter, comparesTwoRowsByOneKey)
{
    for (const PairCase& c : pairCases) {
        SCOPED_TRACE(c.what);
        const auto dataset = column(c.kind, c.type, {c.a, c.b});
        const SortKeys ascending{{0, up}};
        const SortKeys descending{{0, down}};
        EXPECT_EQ(rowsorter::goesBefore(*dataset, ascending, 0, 1), c.abUp);
        EXPECT_EQ(rowsorter::goesBefore(*dataset, ascending, 1, 0), c.baUp);
        EXPECT_EQ(rowsorter::goesBefore(*dataset, descending, 0, 1), c.abDown);
        EXPECT_EQ(rowsorter::goesBefore(*dataset, descending, 1, 0), c.baDown);
    }
}

TEST(RowSorter, stopsComparingAtTheFirstKeyThatIsNotEqual)
{
    ScriptedDataset dataset;
    dataset.variable("A", TypeCode::Double).variable("B", TypeCode::Character);
    dataset.row({1.0, "x"}).row({1.0, "y"}).row({missing, "a"}).row({missing, "b"});
    const SortKeys keys{{0, up}, {1, down}};

    EXPECT_TRUE(rowsorter::goesBefore(dataset, keys, 1, 0));  // equal in A, "y" first in B
    EXPECT_FALSE(rowsorter::goesBefore(dataset, keys, 2, 3));  // missing in A: B is not asked
    EXPECT_FALSE(rowsorter::goesBefore(dataset, keys, 3, 2));
    EXPECT_FALSE(rowsorter::goesBefore(dataset, keys, 0, 2));
    EXPECT_FALSE(rowsorter::goesBefore(dataset, {}, 0, 1));
}

struct SortCase
{
    const char* what;
    SourceKind kind;
    TypeCode type;
    std::vector<Value> values;
    Rows ascending;
    Rows descending;
};

const SortCase sortCases[] = {
    {"missing first, then last",
     SourceKind::Sas,
     TypeCode::Double,
     {2.0, missing, -1.0, missing, 2.0, 0.0},
     {1, 3, 2, 5, 0, 4},
     {0, 4, 5, 2, 1, 3}},
    {"zeros are equal",
     SourceKind::Sas,
     TypeCode::Double,
     {0.0, -0.0, -1e-300},
     {2, 0, 1},
     {0, 1, 2}},
    {"texts",
     SourceKind::Sas,
     TypeCode::Character,
     {"b", "", "ab", "a", "\xFF", "b"},
     {1, 3, 2, 0, 5, 4},
     {4, 0, 5, 2, 3, 1}},
    {"numbers by their texts",
     SourceKind::Stata,
     TypeCode::Int32,
     {100.0, 20.0, 3.0, missing},
     {3, 0, 1, 2},
     {2, 1, 0, 3}},
    {"missing texts of R last",
     SourceKind::R,
     TypeCode::Character,
     {"N/A", "b", "a", "N/A", "Z"},
     {4, 2, 1, 0, 3},
     {1, 2, 4, 0, 3}},
    {"missing numbers of R last",
     SourceKind::R,
     TypeCode::Double,
     {missing, 3.0, -2.0, missing},
     {2, 1, 0, 3},
     {1, 2, 0, 3}},
    {"missing integers of R last",
     SourceKind::R,
     TypeCode::Int8,
     {naInteger, 3.0, -2.0, naInteger},
     {2, 1, 0, 3},
     {1, 2, 0, 3}},
    {"no rows", SourceKind::Sas, TypeCode::Character, {}, {}, {}},
};

TEST(RowSorter, sortsByOneKeyAndKeepsTheOrderOfEqualRows)
{
    for (const SortCase& c : sortCases) {
        SCOPED_TRACE(c.what);
        const auto dataset = column(c.kind, c.type, c.values);
        EXPECT_EQ(sorted(*dataset, {{0, up}}), c.ascending);
        EXPECT_EQ(sorted(*dataset, {{0, down}}), c.descending);
    }
}

TEST(RowSorter, breaksTiesByLaterKeysAlsoAmongMissingNumbers)
{
    ScriptedDataset dataset;
    dataset.variable("A", TypeCode::Double).variable("B", TypeCode::Character);
    dataset.row({5.0, "m"}).row({missing, "x"}).row({5.0, "c"}).row({missing, "y"});
    dataset.row({1.0, "c"});

    EXPECT_EQ(sorted(dataset, {{0, up}, {1, down}}), (Rows{3, 1, 4, 0, 2}));
    EXPECT_EQ(sorted(dataset, {{0, down}, {1, up}}), (Rows{2, 0, 4, 1, 3}));
    EXPECT_EQ(sorted(dataset, {{1, up}, {0, down}}), (Rows{2, 4, 0, 1, 3}));
    EXPECT_EQ(sorted(dataset, {}), (Rows{0, 1, 2, 3, 4}));
}

TEST(RowSorter, takesNullTextsForEmptyOnesAndTheirMissingNumbersForTheSmallest)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "T", .type = TypeCode::Character}).addVariable({.name = "N"});
    builder.addText("a").addNumber(-5).addNullText().addMissing().addText("").addNumber(7);
    const auto dataset = builder.build();

    EXPECT_EQ(sorted(*dataset, {{0, up}}), (Rows{1, 2, 0}));
    EXPECT_EQ(sorted(*dataset, {{1, up}}), (Rows{1, 0, 2}));
    EXPECT_EQ(sorted(*dataset, {{0, down}, {1, down}}), (Rows{0, 2, 1}));
}

TEST(RowSorter, tellsLongTextsApartWhereverTheyDiffer)
{
    // Lengths round the seven bytes that are compared at a time, and NULs that look like an end.
    std::vector<std::string> texts;
    for (const std::size_t length : {0, 1, 6, 7, 8, 13, 14, 15, 21, 22, 40, 5000}) {
        const std::string same(length, 'k');
        for (const char* end : {"", "a", "b", "\xFE"}) {
            texts.push_back(same + end);
        }
        texts.push_back(same + std::string(1, '\0'));
        texts.push_back(same + std::string(9, '\0'));
        texts.push_back(same + std::string(9, '\0') + "x");
    }
    std::mt19937 random(7);
    std::shuffle(texts.begin(), texts.end(), random);
    const auto dataset = column(SourceKind::Sas, TypeCode::Character, {texts.begin(), texts.end()});

    const Rows rows = sorted(*dataset, {{0, up}});
    std::vector<std::string> inOrder;
    for (const std::uint32_t row : rows) {
        inOrder.push_back(texts[row]);
    }
    EXPECT_TRUE(std::is_sorted(inOrder.begin(), inOrder.end()));
}

TEST(RowSorter, sortsManyRowsAsTheLibraryDoesWhereNothingIsMissing)
{
    ScriptedDataset dataset;
    dataset.variable("N", TypeCode::Double).variable("T", TypeCode::Character);
    std::mt19937_64 random(11);
    std::normal_distribution<double> number(0.0, 1e6);
    dataset.rows(5000, [&](int row, int column) -> Value {
        return column == 0 ? Value(row % 3 == 0 ? std::trunc(number(random) / 1e5) : number(random))
                           : Value("SUBJECT-" + std::to_string(random() % 900));
    });
    Rows byNumber(5000);
    std::iota(byNumber.begin(), byNumber.end(), 0U);
    Rows byText = byNumber;
    std::stable_sort(byNumber.begin(), byNumber.end(), [&](std::uint32_t a, std::uint32_t b) {
        return dataset.numericValue(int(a), 0) > dataset.numericValue(int(b), 0);
    });
    std::stable_sort(byText.begin(), byText.end(), [&](std::uint32_t a, std::uint32_t b) {
        return dataset.stringValue(int(a), 1) < dataset.stringValue(int(b), 1);
    });

    EXPECT_EQ(sorted(dataset, {{0, down}}), byNumber);
    EXPECT_EQ(sorted(dataset, {{1, up}}), byText);
}

/// A dataset with a variable of every type, few distinct values and many missing ones.
std::unique_ptr<ScriptedDataset> randomDataset(SourceKind kind, std::mt19937& random, int rows)
{
    auto dataset = std::make_unique<ScriptedDataset>(kind);
    for (int type = 0; type <= 5; ++type) {
        dataset->variable("V" + std::to_string(type), TypeCode{type});
    }
    const std::vector<Value> texts{"N/A", "", "a", "ab", "b ", "\xC3\xA9"};
    const std::vector<Value> numbers{missing, naInteger, -0.0, 0.0, 1.0, 10.0, 9.0, HUGE_VAL};
    const std::vector<Value> smallNumbers{missing, 0.0, 1.0};
    dataset->rows(rows, [&](int row, int column) {
        const auto& values = column == 0 ? texts : row % 2 == 0 ? numbers : smallNumbers;
        return values[random() % values.size()];
    });
    return dataset;
}

void expectLinearExtension(const StatDataset& dataset, const SortKeys& keys)
{
    const Rows rows = sorted(dataset, keys);
    Rows everyRow = rows;
    std::sort(everyRow.begin(), everyRow.end());
    for (std::size_t i = 0; i < everyRow.size(); ++i) {
        ASSERT_EQ(everyRow[i], i) << "not every observation is there once";
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = i + 1; j < rows.size(); ++j) {
            ASSERT_FALSE(rowsorter::goesBefore(dataset, keys, int(rows[j]), int(rows[i])))
                << "row " << rows[j] << " must precede row " << rows[i];
        }
    }
}

TEST(RowSorter, neverPutsARowBeforeOneThatMustPrecedeIt)
{
    std::mt19937 random(20251028);
    for (const SourceKind kind : {SourceKind::Sas, SourceKind::R}) {
        for (int round = 0; round < 150; ++round) {
            const int rows = round % 30;
            const auto dataset = randomDataset(kind, random, rows);
            SortKeys keys;
            for (std::uint32_t n = 1 + random() % 3; n > 0; --n) {
                keys.emplace_back(static_cast<int>(random() % 6), random() % 2 == 0 ? up : down);
            }
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", round " << round);
            expectLinearExtension(*dataset, keys);
        }
    }
    const auto large = randomDataset(SourceKind::Sas, random, 700);
    expectLinearExtension(*large, {{5, down}, {3, up}, {0, up}});
}

TEST(RowSorter, keepsMissingNumbersTogether)
{
    std::mt19937 random(5);
    for (const Qt::SortOrder order : {up, down}) {
        const auto dataset = randomDataset(SourceKind::Spss, random, 200);
        const Rows rows = sorted(*dataset, {{5, order}});
        std::vector<bool> isMissing;
        for (const std::uint32_t row : rows) {
            isMissing.push_back(std::isnan(dataset->numericValue(int(row), 5)));
        }
        ASSERT_TRUE(std::find(isMissing.begin(), isMissing.end(), true) != isMissing.end());
        EXPECT_EQ(isMissing.front(), order == up);
        EXPECT_EQ(std::is_sorted(isMissing.rbegin(), isMissing.rend()), order == up);
        EXPECT_EQ(std::is_sorted(isMissing.begin(), isMissing.end()), order == down);
    }
}

}  // namespace
