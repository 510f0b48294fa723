#include "data/InMemoryDataset.h"
#include "grid/filter/QuickFilter.h"
#include "tests/filter/Selecting.h"

#include <bit>
#include <cmath>
#include <ostream>
#include <random>

namespace {

using Value = QuickFilter::Value;

std::string textOf(const Result<QString>& condition)
{
    return condition ? condition.value().toStdString() : "failure: " + condition.error();
}

FormattedDataset& columns()
{
    static FormattedDataset dataset;
    if (dataset.variableCount() == 0) {
        dataset.variable("AGE", TypeCode::Double)
            .variable("SEX", TypeCode::Character)
            .variable("D", TypeCode::Double, "YYMMDD")
            .variable("DT", TypeCode::Double, "DATETIME")
            .variable("T", TypeCode::Double, "time5.")
            .variable("my var", TypeCode::Double);
    }
    return dataset;
}

TEST(QuickFilter, writesNumbersShort)
{
    const QuickFilter age(columns(), 0);
    EXPECT_EQ(textOf(age.compare(CompareOp::Equal, 60.0)), "AGE = 60");
    EXPECT_EQ(textOf(age.compare(CompareOp::NotEqual, 0.1)), "AGE ^= 0.1");
    EXPECT_EQ(textOf(age.compare(CompareOp::Greater, -2.5)), "AGE > -2.5");
    EXPECT_EQ(textOf(age.compare(CompareOp::LessOrEqual, 1e20)), "AGE <= 1e+20");
    EXPECT_EQ(textOf(age.compare(CompareOp::Equal, -0.0)), "AGE = 0");
    EXPECT_EQ(textOf(age.compare(CompareOp::Equal, 0.1 + 0.2)), "AGE = 0.30000000000000004");
    EXPECT_EQ(textOf(age.compare(CompareOp::Equal, ScriptedDataset::missing)), "AGE = .");
    EXPECT_EQ(textOf(age.compare(CompareOp::GreaterOrEqual, ScriptedDataset::missing)), "AGE >= .");
    EXPECT_EQ(textOf(age.compare(CompareOp::Equal, std::numeric_limits<double>::infinity())),
              "failure: An infinite number cannot be written in a filter");
}

TEST(QuickFilter, writesTextsInTheQuotesTheyDoNotHold)
{
    const QuickFilter sex(columns(), 1);
    EXPECT_EQ(textOf(sex.compare(CompareOp::Equal, "F")), "SEX = \"F\"");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Less, "F ")), "SEX < \"F\"");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Equal, "it's")), "SEX = \"it's\"");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Equal, "6\" pipe")), "SEX = '6\" pipe'");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Equal, "6\" o'clock")),
              "failure: A text with both kinds of quotes cannot be written in a filter: "
              "6\" o'clock");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Equal, "  ")), "SEX is null");
    EXPECT_EQ(textOf(sex.compare(CompareOp::NotEqual, "")), "SEX is not null");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Greater, "")), "SEX > \"\"");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Equal, "\xFF")).substr(0, 8), "failure:");
}

TEST(QuickFilter, writesDatesAndTimesAsLiteralsWhereTheseReadBack)
{
    const QuickFilter date(columns(), 2);
    EXPECT_EQ(textOf(date.compare(CompareOp::Equal, 21915.0)), "D = \"01JAN2020\"d");
    EXPECT_EQ(textOf(date.compare(CompareOp::Equal, 21915.5)), "D = 21915.5");
    EXPECT_EQ(textOf(date.compare(CompareOp::Equal, -200000.0)), "D = -200000") << "before 1582";
    EXPECT_EQ(textOf(date.compare(CompareOp::Equal, ScriptedDataset::missing)), "D = .");
    const QuickFilter dateTime(columns(), 3);
    EXPECT_EQ(textOf(dateTime.compare(CompareOp::GreaterOrEqual, 1893501015.0)),
              "DT >= \"01JAN2020:12:30:15\"dt");
    const QuickFilter time(columns(), 4);
    EXPECT_EQ(textOf(time.compare(CompareOp::Equal, 45015.0)), "T = \"12:30:15\"t");
    EXPECT_EQ(textOf(time.compare(CompareOp::Equal, 90000.0)), "T = 90000") << "beyond a day";
}

TEST(QuickFilter, writesDatesOfOtherProgramsByTheirEpoch)
{
    struct Row
    {
        SourceKind kind;
        const char* format;
        double value;
        const char* condition;
    };
    for (const Row& row : std::vector<Row>{
             {SourceKind::Spss, "DATE11", 13797216000.0, "x = \"01JAN2020\"d"},
             {SourceKind::Spss, "DATETIME20", 13797216001.0, "x = \"01JAN2020:00:00:01\"dt"},
             {SourceKind::Spss, "TIME8", 3600.0, "x = \"01:00:00\"t"},
             {SourceKind::Spss, "F8.2", 21915.0, "x = 21915"},
             {SourceKind::R, "%d%b%Y", 18262.0, "x = \"01JAN2020\"d"},
             {SourceKind::R, "%d%b%Y:%H:%M:%S", 1577836801.0, "x = \"01JAN2020:00:00:01\"dt"},
             {SourceKind::Stata, "%td", 21915.0, "x = \"01JAN2020\"d"},
             {SourceKind::Stata, "%tc", 1893456000000.0, "x = \"01JAN2020:00:00:00\"dt"},
             {SourceKind::Stata, "%tc", 1893456000500.0, "x = 1893456000500"},
             {SourceKind::Stata, "%tm", 720.0, "x = 720"},
         }) {
        FormattedDataset dataset(row.kind);
        dataset.variable("x", TypeCode::Double, row.format).row({row.value}).row({0.0});
        const auto condition = QuickFilter(dataset, 0).compare(CompareOp::Equal, row.value);
        EXPECT_EQ(textOf(condition), row.condition) << row.format;
        EXPECT_EQ(selected(dataset, textOf(condition)), std::vector<int>{1}) << row.format;
    }
}

TEST(QuickFilter, writesListsOfValues)
{
    const QuickFilter age(columns(), 0);
    EXPECT_EQ(textOf(age.isIn(std::vector<Value>{3.0, ScriptedDataset::missing, -1.0, 3.0})),
              "AGE in (3, ., -1)");
    const QuickFilter sex(columns(), 1);
    EXPECT_EQ(textOf(sex.isIn(std::vector<Value>{"M", "", "it's", "M "})),
              "SEX in (\"M\", \"\", \"it's\")");
    const QuickFilter date(columns(), 2);
    EXPECT_EQ(textOf(date.isIn(std::vector<Value>{21915.0, 0.5})), "D in (\"01JAN2020\"d, 0.5)");
    EXPECT_EQ(textOf(age.isIn({})).substr(0, 8), "failure:");
    EXPECT_EQ(textOf(sex.isIn(std::vector<Value>{"a", "'\""})).substr(0, 8), "failure:");
}

TEST(QuickFilter, writesContainsWithIndex)
{
    const QuickFilter sex(columns(), 1);
    EXPECT_EQ(textOf(sex.contains("it's ")), "index(SEX, \"it's\") > 0");
    EXPECT_EQ(textOf(sex.compare(CompareOp::Contains, "a")), "index(SEX, \"a\") > 0");
    EXPECT_EQ(textOf(sex.contains("")), "SEX is null");
    EXPECT_EQ(textOf(QuickFilter(columns(), 0).contains(5.0)).substr(0, 8), "failure:");
}

TEST(QuickFilter, refusesNamesThatAreNoIdentifiers)
{
    EXPECT_EQ(textOf(QuickFilter(columns(), 5).compare(CompareOp::Equal, 1.0)),
              "failure: The variable my var cannot be filtered: its name is more than letters, "
              "digits and _");
}

TEST(QuickFilter, takesTheMissingMarksOfTheDataset)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "Q"}).addMissing();
    const auto built = builder.build();
    const QuickFilter quick(*built, 0);
    EXPECT_EQ(textOf(quick.compare(CompareOp::Equal, quick.valueAt(0))), "Q = .");

    ScriptedDataset r(SourceKind::R);
    r.variable("i", TypeCode::Int32).row({-2147483648.0});
    const QuickFilter integer(r, 0);
    EXPECT_EQ(textOf(integer.compare(CompareOp::Equal, integer.valueAt(0))), "i = .");
}

/// Doubles of every size, whole ones that look like dates among them.
double randomNumber(std::mt19937_64& random)
{
    switch (random() % 4) {
    case 0: {
        const auto number = std::bit_cast<double>(random());
        return std::isfinite(number) ? number : ScriptedDataset::missing;
    }
    case 1:
        return static_cast<double>(static_cast<std::int64_t>(random() % 80000) - 20000);
    case 2:
        return static_cast<double>(static_cast<std::int64_t>(random() % 20'000'000'000)) - 5e9;
    default:
        return static_cast<double>(random() % 1000) / 8;
    }
}

std::string randomText(std::mt19937_64& random)
{
    static const std::vector<std::string> pieces{"a", "B", "'", "\"", " ",      "\u00E4",
                                                 "d", "t", "(", ")",  "\u65E5", "\n"};
    std::string text;
    for (auto n = random() % 5; n > 0; --n) {
        text += pieces[random() % pieces.size()];
    }
    return text;
}

bool sameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool sameText(std::string a, std::string b)
{
    a.erase(a.find_last_not_of(' ') + 1);
    b.erase(b.find_last_not_of(' ') + 1);
    return a == b;
}

struct Format
{
    const char* test;
    SourceKind kind;
    const char* name;
};

std::ostream& operator<<(std::ostream& stream, const Format& format)
{
    return stream << format.name;
}

class QuickFilterOfRandomValues : public testing::TestWithParam<Format>
{ };

TEST_P(QuickFilterOfRandomValues, selectsExactlyTheRowsWithThatValue)
{
    std::mt19937_64 random(99);
    constexpr int rows = 400;
    FormattedDataset dataset(GetParam().kind);
    dataset.variable("n", TypeCode::Double, GetParam().name)
        .variable("s", TypeCode::Character)
        .rows(rows, [&](int, int column) -> ScriptedDataset::Value {
            if (column == 1) {
                return randomText(random);
            }
            return random() % 16 == 0 ? ScriptedDataset::missing : randomNumber(random);
        });
    int literals = 0;
    for (int row = 0; row < rows; ++row) {
        const QuickFilter number(dataset, 0);
        const auto byNumber = number.compare(CompareOp::Equal, number.valueAt(row));
        ASSERT_TRUE(byNumber) << byNumber.error();
        literals += byNumber.value().contains(u'"') ? 1 : 0;
        std::vector<int> sameNumbers;
        std::vector<int> sameTexts;
        for (int other = 0; other < rows; ++other) {
            if (sameNumber(dataset.numericValue(row, 0), dataset.numericValue(other, 0))) {
                sameNumbers.push_back(other + 1);
            }
            if (sameText(dataset.stringValue(row, 1), dataset.stringValue(other, 1))) {
                sameTexts.push_back(other + 1);
            }
        }
        ASSERT_EQ(selected(dataset, textOf(byNumber)), sameNumbers) << textOf(byNumber);

        const QuickFilter text(dataset, 1);
        const std::string value = dataset.stringValue(row, 1);
        const auto byText = text.compare(CompareOp::Equal, value);
        const bool hasBoth =
            value.find('"') != std::string::npos && value.find('\'') != std::string::npos;
        ASSERT_EQ(byText.ok(), !hasBoth) << value;
        if (!hasBoth) {
            ASSERT_EQ(selected(dataset, textOf(byText)), sameTexts) << textOf(byText);
        }
    }
    const bool hasDates = std::string(GetParam().name) != "BEST";
    EXPECT_EQ(literals > 20, hasDates) << literals << " of the values are dates";
}

const std::vector<Format> formats{
    {"Number", SourceKind::Sas, "BEST"},
    {"SasDate", SourceKind::Sas, "DATE"},
    {"SasDateTime", SourceKind::Sas, "DATETIME"},
    {"SasTime", SourceKind::Sas, "TIME"},
    {"SpssDateTime", SourceKind::Spss, "DATETIME"},
    {"RDate", SourceKind::R, "%d%b%Y"},
    {"StataDate", SourceKind::Stata, "%td"},
};

INSTANTIATE_TEST_SUITE_P(Formats, QuickFilterOfRandomValues, testing::ValuesIn(formats),
                         [](const auto& row) { return row.param.test; });

}  // namespace
