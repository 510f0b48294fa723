#include "analysis/RowSorter.h"
#include "data/InMemoryDataset.h"
#include "tests/analysis/RandomDatasets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <numeric>

namespace {

using Order = std::partial_ordering;
using Rows = std::vector<std::uint32_t>;
using Value = ScriptedDataset::Value;
using randomdatasets::naInteger;

constexpr double missing = ScriptedDataset::missing;
constexpr auto up = Qt::AscendingOrder;
constexpr auto down = Qt::DescendingOrder;

Rows sorted(const StatDataset& dataset, const SortKeys& keys)
{
    Rows rows;
    rowsorter::sortObservations(dataset, keys, rows);
    return rows;
}

Order textsInR(const std::string& a, const std::string& b, bool ascending)
{
    if ((a == "N/A") != (b == "N/A")) {
        return (a == "N/A") == ascending ? Order::greater : Order::less;
    }
    return a.compare(b) <=> 0;
}

double integerInR(double number, bool ascending)
{
    if (std::isnan(number) || number == naInteger) {
        return ascending ? 2147483647.0 : naInteger;
    }
    return number > 2147483647.0 ? 2147483647.0
        : number < naInteger     ? naInteger
                                 : double(std::int32_t(number));
}

double realInR(double number, bool ascending)
{
    return !std::isnan(number) ? number : ascending ? HUGE_VAL : -HUGE_VAL;
}

/// What the definition says of two rows and one key.
Order compare(const StatDataset& dataset, const SortKey& key, int a, int b)
{
    const auto [variable, direction] = key;
    const bool ascending = direction == up;
    const TypeCode type = dataset.typeCodes().at(std::size_t(variable));
    const auto number = [&, column = variable](int row) {
        return dataset.numericValue(row, column);
    };
    const auto text = [&, column = variable](int row) { return dataset.stringValue(row, column); };
    if (dataset.sourceKind() != SourceKind::R) {
        return type == TypeCode::Double ? number(a) <=> number(b)
            : type == TypeCode::Character
            ? Order(text(a).compare(text(b)) <=> 0)
            : Order(dataset.cellText(a, variable).compare(dataset.cellText(b, variable)) <=> 0);
    }
    if (type == TypeCode::Character) {
        return textsInR(text(a), text(b), ascending);
    }
    return type == TypeCode::Int8 || type == TypeCode::Int32
        ? integerInR(number(a), ascending) <=> integerInR(number(b), ascending)
        : realInR(number(a), ascending) <=> realInR(number(b), ascending);
}

/// The total order that extends the comparator, which stops at missing numbers: they come lowest.
bool goesBefore(const StatDataset& dataset, const SortKeys& keys, int a, int b)
{
    for (const SortKey& key : keys) {
        Order order = compare(dataset, key, a, b);
        if (order == Order::unordered) {
            order = std::isnan(dataset.numericValue(b, key.first))
                <=> std::isnan(dataset.numericValue(a, key.first));
        }
        if (order != Order::equivalent) {
            return order == (key.second == up ? Order::less : Order::greater);
        }
    }
    return false;
}

void expectAsDefined(const StatDataset& dataset, const SortKeys& keys)
{
    Rows expected(std::size_t(dataset.observationCount()));
    std::iota(expected.begin(), expected.end(), 0U);
    std::stable_sort(expected.begin(), expected.end(), [&](std::uint32_t a, std::uint32_t b) {
        return goesBefore(dataset, keys, int(a), int(b));
    });
    EXPECT_EQ(sorted(dataset, keys), expected);
}

TEST(RowSorter, neverPutsARowBeforeOneThatMustPrecedeItAndKeepsMissingNumbersTogether)
{
    std::mt19937 random(20251028);
    for (const SourceKind kind : {SourceKind::Sas, SourceKind::Stata, SourceKind::R}) {
        for (int round = 0; round < 150; ++round) {
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", round " << round);
            const auto dataset = randomdatasets::ofFewValues(kind, random, round % 30);
            SortKeys keys;
            for (std::size_t n = random() % 4; n > 0; --n) {
                keys.emplace_back(int(random() % 7), random() % 2 == 0 ? up : down);
            }
            expectAsDefined(*dataset, keys);
        }
    }
}

TEST(RowSorter, sortsManyValuesAsTheLibraryDoes)
{
    std::mt19937 random(11);
    for (const SourceKind kind : {SourceKind::Csv, SourceKind::R}) {
        SCOPED_TRACE(int(kind));
        const auto dataset = randomdatasets::ofManyValues(kind, random);
        expectAsDefined(*dataset, {{5, down}});
        expectAsDefined(*dataset, {{0, up}});
        expectAsDefined(*dataset, {{2, up}, {6, down}, {1, up}});
    }
}

TEST(RowSorter, takesNullTextsForEmptyOnesAndTheirMissingNumbersForTheSmallest)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "T", .type = TypeCode::Character}).addVariable({.name = "N"});
    builder.addText("a").addNumber(-5).addNullText().addMissing().addText("").addNumber(7);
    const auto dataset = builder.build();

    EXPECT_EQ(sorted(*dataset, {{1, up}}), (Rows{1, 0, 2}));
    EXPECT_EQ(sorted(*dataset, {{0, down}, {1, down}}), (Rows{0, 2, 1}));
}

TEST(RowSorter, tellsLongTextsApartWhereverTheyDiffer)
{
    // Lengths round the seven bytes compared at a time, NULs that look like an end; greater first.
    ScriptedDataset dataset;
    dataset.variable("T", TypeCode::Character);
    for (const std::size_t length : {5000, 40, 22, 21, 15, 14, 13, 8, 7, 6, 1, 0}) {
        const std::string same(length, 'k');
        dataset.row({same + std::string(9, '\0') + "x"});
        dataset.row({same + std::string(9, '\0')}).row({same + std::string(1, '\0')});
        for (const char* end : {"b", "\xFE", "a", ""}) {
            dataset.row({same + end});
        }
    }
    expectAsDefined(dataset, {{0, up}});
}

}  // namespace
