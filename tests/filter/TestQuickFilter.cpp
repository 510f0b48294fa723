#include "data/InMemoryDataset.h"
#include "grid/filter/QuickFilter.h"
#include "tests/filter/Selecting.h"

#include <bit>
#include <cmath>
#include <functional>
#include <random>

namespace {

using Value = QuickFilter::Value;

std::string textOf(const Result<QString>& condition)
{
    return condition ? condition.value().toStdString() : "failure: " + condition.error();
}

/// The condition of a variable "x" of the value's type.
std::string written(CompareOp op, const Value& value, const char* format = "",
                    SourceKind kind = SourceKind::Sas)
{
    FormattedDataset dataset(kind);
    const bool isText = std::holds_alternative<std::string>(value);
    dataset.variable("x", isText ? TypeCode::Character : TypeCode::Double, format);
    return textOf(QuickFilter(dataset, 0).compare(op, value));
}

TEST(QuickFilter, writesValuesAsTheyAreStored)
{
    struct Row
    {
        CompareOp op;
        Value value;
        const char* condition;
    };
    for (const Row& row : std::vector<Row>{
             {CompareOp::Equal, 60.0, "x = 60"},
             {CompareOp::NotEqual, 0.1 + 0.2, "x ^= 0.30000000000000004"},
             {CompareOp::LessOrEqual, 1e20, "x <= 1e+20"},
             {CompareOp::Equal, -0.0, "x = 0"},
             {CompareOp::Equal, HUGE_VAL,
              "failure: An infinite number cannot be written in a filter"},
             {CompareOp::Less, "F ", "x < \"F\""},
             {CompareOp::Equal, "it's", "x = \"it's\""},
             {CompareOp::Equal, "6\" pipe", "x = '6\" pipe'"},
             {CompareOp::Equal, "6\" o'clock",
              "failure: A text with both kinds of quotes cannot be written in a filter: "
              "6\" o'clock"},
             {CompareOp::Equal, "\xFF",
              "failure: A text with invalid characters cannot be written in a filter"},
             {CompareOp::Equal, "  ", "x is null"},
             {CompareOp::NotEqual, "", "x is not null"},
             {CompareOp::Greater, "", "x > \"\""},
             {CompareOp::Contains, "it's ", "index(x, \"it's\") > 0"},
             {CompareOp::Contains, "", "x is null"},
             {CompareOp::Contains, 5.0, "failure: x holds numbers, which contain no text"}}) {
        EXPECT_EQ(written(row.op, row.value), row.condition);
    }
}

TEST(QuickFilter, writesDatesAndTimesAsLiteralsWhereTheseReadBack)
{
    struct Row
    {
        SourceKind kind;
        const char* format;
        double value;
        const char* condition;
    };
    for (const Row& row : std::vector<Row>{
             {SourceKind::Sas, "YYMMDD", 21915.0, "x = \"01JAN2020\"d"},
             {SourceKind::Sas, "DATE", 21915.5, "x = 21915.5"},
             {SourceKind::Sas, "DATE", -200000.0, "x = -200000"},  // before 1582
             {SourceKind::Sas, "DATETIME", 1893501015.0, "x = \"01JAN2020:12:30:15\"dt"},
             {SourceKind::Sas, "time5.", 45015.0, "x = \"12:30:15\"t"},
             {SourceKind::Sas, "time5.", 90000.0, "x = 90000"},  // beyond a day
             {SourceKind::Spss, "DATE11", 13797216000.0, "x = \"01JAN2020\"d"},
             {SourceKind::Spss, "DATETIME20", 13797216001.0, "x = \"01JAN2020:00:00:01\"dt"},
             {SourceKind::Spss, "TIME8", 3600.0, "x = \"01:00:00\"t"},
             {SourceKind::R, "%d%b%Y", 18262.0, "x = \"01JAN2020\"d"},
             {SourceKind::R, "%d%b%Y:%H:%M:%S", 1577836801.0, "x = \"01JAN2020:00:00:01\"dt"},
             {SourceKind::Stata, "%td", 21915.0, "x = \"01JAN2020\"d"},
             {SourceKind::Stata, "%tc", 1893456000000.0, "x = \"01JAN2020:00:00:00\"dt"},
             {SourceKind::Stata, "%tc", 1893456000500.0, "x = 1893456000500"},
             {SourceKind::Stata, "%tm", 720.0, "x = 720"}}) {
        EXPECT_EQ(written(CompareOp::Equal, row.value, row.format, row.kind), row.condition)
            << row.format;
    }
}

TEST(QuickFilter, writesEachValueOfAListOnce)
{
    FormattedDataset dataset;
    dataset.variable("D", TypeCode::Double, "DATE");
    const QuickFilter date(dataset, 0);
    EXPECT_EQ(textOf(date.isIn(std::vector<Value>{21915.0, ScriptedDataset::missing, 0.5, 0.5})),
              "D in (\"01JAN2020\"d, ., 0.5)");
    EXPECT_EQ(textOf(date.isIn({})), "failure: There is no value to filter by");
}

TEST(QuickFilter, writesNamesThatAreNoIdentifiersAsLiterals)
{
    for (const auto& [name, written] : {std::pair("Sepal.Length", "'Sepal.Length'n = 1"),
                                        {"gr\u00F6\u00DFe 2", "'gr\u00F6\u00DFe 2'n = 1"},
                                        {"1st", "'1st'n = 1"},
                                        {"it's", "\"it's\"n = 1"},
                                        {"'x'n", "\"'x'n\"n = 1"},
                                        {"6' 2\"", "'6'' 2\"'n = 1"},
                                        {"", "''n = 1"},
                                        {"in", "in = 1"}}) {
        FormattedDataset dataset;
        dataset.variable(name, TypeCode::Double);
        EXPECT_EQ(textOf(QuickFilter(dataset, 0).compare(CompareOp::Equal, 1.0)), written);
    }
}

TEST(QuickFilter, takesTheMissingMarkOfTheDataset)
{
    InMemoryDatasetBuilder builder;
    const auto built = builder.addVariable({.name = "Q"}).addMissing().build();
    const QuickFilter quick(*built, 0);
    EXPECT_EQ(textOf(quick.compare(CompareOp::Equal, quick.valueAt(0))), "Q = .");
}

/// Numbers of every size, whole ones that look like dates among them, and texts.
ScriptedDataset::Value randomValue(std::mt19937_64& random, int column)
{
    if (column == 1) {
        static const std::vector<std::string> pieces{"a", "'", "\"", " ", "\u00E4", "d", "(", "\n"};
        std::string text;
        for (auto n = random() % 5; n > 0; --n) {
            text += pieces[random() % pieces.size()];
        }
        return text;
    }
    switch (random() % 4) {
    case 0: {
        const auto number = std::bit_cast<double>(random());
        return std::isfinite(number) ? number : ScriptedDataset::missing;
    }
    case 1:
        return static_cast<double>(random() % 80000) - 20000;
    case 2:
        return static_cast<double>(random() % 20'000'000'000) - 5e9;
    default:
        return random() % 4 == 0 ? ScriptedDataset::missing
                                 : static_cast<double>(random() % 1000) / 8;
    }
}

/// What two values that are alike to a user share: all missing numbers, and texts but for blanks at
/// their end.
Value shared(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        return withoutBlanksAtEnd(*text);
    }
    return std::isnan(std::get<double>(value)) ? HUGE_VAL : value;
}

TEST(QuickFilter, selectsExactlyTheRowsWithThatValue)
{
    constexpr int rows = 200;
    const std::vector<std::pair<SourceKind, const char*>> formats{
        {SourceKind::Sas, "BEST"}, {SourceKind::Sas, "DATE"},      {SourceKind::Sas, "DATETIME"},
        {SourceKind::Sas, "TIME"}, {SourceKind::Spss, "DATETIME"}, {SourceKind::R, "%d%b%Y"},
        {SourceKind::Stata, "%td"}};
    for (const auto& [kind, format] : formats) {
        std::mt19937_64 random(99);
        int refused = 0;
        FormattedDataset dataset(kind);
        dataset.variable("n'\" 1", TypeCode::Double, format).variable("'s'n", TypeCode::Character);
        dataset.rows(rows, [&](int, int column) { return randomValue(random, column); });
        for (int i = 0; i < 2 * rows; ++i) {
            const QuickFilter quick(dataset, i % 2);
            const std::vector<Value> values{quick.valueAt(i / 2), quick.valueAt((i * 7) % rows)};
            if (!quick.isIn(values)) {
                ++refused;
                continue;
            }
            const auto check = [&](const Result<QString>& condition, auto holds) {
                std::vector<int> wanted;
                for (int row = 0; row < rows; ++row) {
                    const Value value = shared(quick.valueAt(row));
                    if (holds(value == shared(values[0]), value == shared(values[1]))) {
                        wanted.push_back(row + 1);
                    }
                }
                EXPECT_EQ(selected(dataset, textOf(condition)), wanted)
                    << format << ": " << textOf(condition);
            };
            check(quick.compare(CompareOp::Equal, values[0]), [](bool is, bool) { return is; });
            check(quick.compare(CompareOp::NotEqual, values[0]), [](bool is, bool) { return !is; });
            check(quick.isIn(values), std::logical_or());
        }
        EXPECT_LT(refused, rows / 4) << "only texts with both quotes cannot be written";
    }
}

}  // namespace
