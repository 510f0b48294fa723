#include "data/InMemoryDataset.h"
#include "tests/filter/Selecting.h"

#include <ostream>
#include <random>

namespace {

using Rows = std::vector<int>;

constexpr double missing = ScriptedDataset::missing;

/// Five subjects, one without an age and one without a sex.
const ScriptedDataset& subjects()
{
    static const auto dataset = [] {
        auto made = std::make_unique<ScriptedDataset>();
        made->variable("AGE", TypeCode::Double)
            .variable("SEX", TypeCode::Character)
            .variable("TERM", TypeCode::Character)
            .row({61.0, "F", "Headache"})
            .row({missing, "M", "Severe headache"})
            .row({-5.5, "", "rash"})
            .row({60.0, "F", "RASH, red"})
            .row({75.0, "f", "na\u00EFve \u00FCber"});
        return made;
    }();
    return *dataset;
}

struct Case
{
    const char* name;
    const char* condition;
    Rows rows;
};

std::ostream& operator<<(std::ostream& stream, const Case& row)
{
    return stream << row.condition;
}

class SubjectFilter : public testing::TestWithParam<Case>
{ };

TEST_P(SubjectFilter, selects)
{
    EXPECT_EQ(selected(subjects(), GetParam().condition), GetParam().rows);
}

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

const std::vector<Case> numbers{
    {"Equal", "AGE = 60", {4}},
    {"EqualWord", "age EQ 60.0", {4}},
    {"NotEqualKeepsMissing", "AGE ^= 60", {1, 2, 3, 5}},
    {"NotEqualTilde", "AGE ~= 60", {1, 2, 3, 5}},
    {"NotEqualWord", "AGE ne 60", {1, 2, 3, 5}},
    {"LessKeepsMissing", "AGE < 60", {2, 3}},
    {"LessOrEqualKeepsMissing", "AGE <= 60", {2, 3, 4}},
    {"Greater", "AGE > 60", {1, 5}},
    {"GreaterOrEqual", "AGE >= 60", {1, 4, 5}},
    {"LessThanEverything", "AGE < -1e308", {2}},
    {"Negative", "AGE = -5.5", {3}},
    {"Exponent", "AGE = -55e-1", {3}},
    {"EqualMissing", "AGE = .", {2}},
    {"NotMissing", "AGE ^= .", {1, 3, 4, 5}},
    {"GreaterThanMissing", "AGE > .", {1, 3, 4, 5}},
    {"AtLeastMissing", "AGE >= .", {1, 2, 3, 4, 5}},
    {"LessThanMissing", "AGE < .", {}},
    {"AtMostMissing", "AGE <= .", {2}},
    {"IsNull", "AGE is null", {2}},
    {"IsNotNull", "AGE is not null", {1, 3, 4, 5}},
    {"Isnull", "AGE ISNULL", {2}},
    {"Isnotnull", "AGE isnotnull", {1, 3, 4, 5}},
    {"In", "AGE in (75, 60, 1)", {4, 5}},
    {"InWithMissing", "AGE in (60, .)", {2, 4}},
    {"InMissingOnly", "AGE in (.)", {2}},
    {"NotIn", "AGE not in (60, 61)", {2, 3, 5}},
    {"NotInMissing", "AGE not in (., 60)", {1, 3, 5}},
};

const std::vector<Case> texts{
    {"Equal", "SEX = 'F'", {1, 4}},
    {"EqualIgnoresTrailingBlanks", "SEX = \"F  \"", {1, 4}},
    {"EqualKeepsLeadingBlanks", "SEX = ' F'", {}},
    {"EqualIsCaseSensitive", "sex = 'f'", {5}},
    {"EqualUnknownText", "SEX = 'X'", {}},
    {"NotEqual", "SEX ^= 'F'", {2, 3, 5}},
    {"NotEqualUnknownText", "SEX ne 'X'", {1, 2, 3, 4, 5}},
    {"LessHasBlank", "SEX < 'F'", {3}},
    {"LessOrEqual", "SEX <= 'F '", {1, 3, 4}},
    {"GreaterBytewise", "SEX > 'M'", {5}},
    {"GreaterOrEqual", "SEX ge 'M'", {2, 5}},
    {"BytesAreUnsigned", "TERM > 'na\x7F'", {3, 5}},
    {"EqualBlank", "SEX = ''", {3}},
    {"EqualPoint", "SEX = .", {3}},
    {"GreaterThanPoint", "SEX > .", {1, 2, 4, 5}},
    {"IsNull", "SEX is null", {3}},
    {"IsNotNull", "SEX isnotnull", {1, 2, 4, 5}},
    {"In", "SEX in ('M', 'f ', 'Z')", {2, 5}},
    {"InWithBlank", "SEX in ('', 'M')", {2, 3}},
    {"InWithPoint", "SEX in ('M', .)", {2, 3}},
    {"NotIn", "SEX not in ('F', 'M')", {3, 5}},
    {"InMany", "TERM in ('a', 'b', 'Headache', 'c', 'rash', 'd', 'e')", {1, 3}},
    {"InManyWithBlank", "SEX in ('a', 'b', 'F', 'c', 'd', ' ', 'e', 'f')", {1, 3, 4, 5}},
    {"Contains", "TERM contains 'head'", {2}},
    {"ContainsIsCaseSensitive", "TERM contains 'RASH'", {4}},
    {"ContainsNothing", "TERM contains ''", {1, 2, 3, 4, 5}},
    {"IndexFound", "index(TERM, 'ash') > 0", {3}},
    {"IndexAtStart", "index(term, 'Head') = 1", {1}},
    {"IndexAbsentIsZero", "index(TERM, 'ead') = 0", {3, 4, 5}},
    {"IndexCountsCharacters", "index(TERM, '\u00FC') = 7", {5}},
    {"IndexInOtherText", "index(TERM, 'headache') >= 8", {2}},
    {"IndexIsNeverMissing", "index(TERM, 'x') > .", {1, 2, 3, 4, 5}},
};

const std::vector<Case> junctions{
    {"And", "AGE > 60 and SEX = 'F'", {1}},
    {"Or", "AGE > 60 or SEX = 'F'", {1, 4, 5}},
    {"AndBindsTighter", "SEX = 'M' or AGE > 60 and SEX = 'F'", {1, 2}},
    {"Parentheses", "(SEX = 'M' | AGE > 60) & SEX = 'F'", {1}},
    {"Three", "AGE is not null and SEX is not null and TERM contains 'a'", {1, 5}},
};

INSTANTIATE_TEST_SUITE_P(Numbers, SubjectFilter, testing::ValuesIn(numbers), nameOf);
INSTANTIATE_TEST_SUITE_P(Texts, SubjectFilter, testing::ValuesIn(texts), nameOf);
INSTANTIATE_TEST_SUITE_P(Junctions, SubjectFilter, testing::ValuesIn(junctions), nameOf);

TEST(CompiledCondition, refusesTypesThatDoNotMatch)
{
    for (const char* condition :
         {"AGE = 'F'", "AGE = ''", "SEX = 1", "SEX > -1", "SEX = '01JAN2020'd", "AGE in (1, 'a')",
          "SEX in ('a', 1)", "SEX in ('a', '12:00't)", "AGE contains 'a'", "AGE contains 6",
          "SEX contains 1", "SEX contains .", "index(AGE, 'a') > 0", "index(SEX, 'a') = 'b'",
          "index(SEX, '01JAN2020'd) > 0", "index(SEX, 'a') contains 1",
          "AGE > 60 and (SEX = 'F' or SEX = 5)"}) {
        EXPECT_EQ(refusal(subjects(), condition), "The variable types do not match.") << condition;
    }
}

TEST(CompiledCondition, namesWhatIsWrong)
{
    const std::vector<std::pair<const char*, const char*>> table{
        {"AGES > 1", "There is no variable named AGES"},
        {"AGE > 1 or \u00E4rger = 1", "There is no variable named \u00E4rger"},
        {"index(NAME, 'a') > 0", "There is no variable named NAME"},
        {"NAME is null", "There is no variable named NAME"},
        {"NAME in (1)", "There is no variable named NAME"},
        {"AGE > '31FEB2020'd", "'31FEB2020'd is not a valid date"},
        {"AGE in (1, \"24:60\"T)", "\"24:60\"T is not a valid time"},
        {"AGE = '01JAN2020'dt", "'01JAN2020'dt is not a valid date-time"},
        {"AGE < 1e999", "The number 1e999 is out of range"},
        {"AGE", "expect operator"},
        {"AGE = 1 x", "unexpected trailing text"},
    };
    for (const auto& [condition, error] : table) {
        EXPECT_EQ(refusal(subjects(), condition), error);
    }
}

TEST(CompiledCondition, findsNamesInAnyLetterCase)
{
    ScriptedDataset dataset(SourceKind::R);
    dataset.variable("first", TypeCode::Double)
        .variable("Gr\u00F6\u00DFe", TypeCode::Double)
        .variable("\u0416", TypeCode::Double)
        .variable("age", TypeCode::Double)
        .variable("Age", TypeCode::Double)
        .row({1.0, 2.0, 3.0, 4.0, 5.0});
    EXPECT_EQ(selected(dataset, "GR\u00D6\u00DFE = 2"), Rows{1});
    EXPECT_EQ(selected(dataset, "\u0436 = 3"), Rows{1});
    EXPECT_EQ(selected(dataset, "Age = 5"), Rows{1}) << "the same letters come first";
    EXPECT_EQ(selected(dataset, "AGE = 4"), Rows{1}) << "else the first";
}

TEST(CompiledCondition, knowsTheMissingValuesOfRData)
{
    constexpr double integerNa = -2147483648.0;
    ScriptedDataset dataset(SourceKind::R);
    dataset.variable("i", TypeCode::Int32)
        .variable("b", TypeCode::Int8)
        .variable("x", TypeCode::Double)
        .variable("s", TypeCode::Character)
        .row({integerNa, integerNa, integerNa, "N/A"})
        .row({missing, missing, missing, ""})
        .row({-7.0, 1.0, 0.0, "n/a"});
    EXPECT_EQ(selected(dataset, "i is null"), (Rows{1, 2}));
    EXPECT_EQ(selected(dataset, "i = ."), (Rows{1, 2}));
    EXPECT_EQ(selected(dataset, "i = -2147483648"), Rows{});
    EXPECT_EQ(selected(dataset, "i < -2147483648"), (Rows{1, 2})) << "below every number";
    EXPECT_EQ(selected(dataset, "i > -2147483649"), Rows{3});
    EXPECT_EQ(selected(dataset, "i in (-7, -2147483648)"), Rows{3});
    EXPECT_EQ(selected(dataset, "b > ."), Rows{3});
    EXPECT_EQ(selected(dataset, "x is null"), Rows{2}) << "real numbers have NaN only";
    EXPECT_EQ(selected(dataset, "x = -2147483648"), Rows{1});
    EXPECT_EQ(selected(dataset, "s is null"), (Rows{1, 2}));
    EXPECT_EQ(selected(dataset, "s = 'N/A'"), Rows{1});

    dataset.setSourceKind(SourceKind::Csv);
    EXPECT_EQ(selected(dataset, "i is null"), Rows{2});
    EXPECT_EQ(selected(dataset, "s is null"), Rows{2});
}

TEST(CompiledCondition, knowsTheMissingValuesOfBuiltDatasets)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "Q"}).addVariable({.name = "T", .type = TypeCode::Character});
    builder.addMissing().addNullText();
    builder.addNumber(1).addText("");
    builder.addNumber(2).addText("x");
    const auto dataset = builder.build();
    EXPECT_EQ(selected(*dataset, "Q is null"), Rows{1});
    EXPECT_EQ(selected(*dataset, "Q = ."), Rows{1});
    EXPECT_EQ(selected(*dataset, "Q < 2"), (Rows{1, 2}));
    EXPECT_EQ(selected(*dataset, "Q > ."), (Rows{2, 3}));
    EXPECT_EQ(selected(*dataset, "T is null"), (Rows{1, 2}));
    EXPECT_EQ(selected(*dataset, "T in ('', 'x')"), (Rows{1, 2, 3}));
    EXPECT_EQ(selected(*dataset, "T ^= 'x'"), (Rows{1, 2}));
    EXPECT_EQ(selected(*dataset, "T < 'a'"), (Rows{1, 2}));
    EXPECT_EQ(selected(*dataset, "index(T, 'x') = 0"), (Rows{1, 2}));
}

TEST(CompiledCondition, findsBlankTextsByLongLists)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "T", .type = TypeCode::Character}).addNullText();
    for (const char* text : {"", "a", "b", "c", "d", "e", "f"}) {
        builder.addText(text);
    }
    const auto dataset = builder.build();
    EXPECT_EQ(selected(*dataset, "T in ('a', 'b', 'c', 'd', 'e')"), (Rows{3, 4, 5, 6, 7}));
    EXPECT_EQ(selected(*dataset, "T in ('a', 'b', ' ', 'd', 'e')"), (Rows{1, 2, 3, 4, 6, 7}));
}

TEST(CompiledCondition, takesAnInfinityOfOtherDatasetsForANumber)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    ScriptedDataset dataset(SourceKind::R);
    dataset.variable("x", TypeCode::Double).row({-infinity}).row({missing}).row({infinity});
    EXPECT_EQ(selected(dataset, "x is null"), Rows{2});
    EXPECT_EQ(selected(dataset, "x < 0"), (Rows{1, 2}));
    EXPECT_EQ(selected(dataset, "x > ."), (Rows{1, 3}));
}

TEST(CompiledCondition, comparesNarrowTypesByNumber)
{
    ScriptedDataset dataset(SourceKind::Stata);
    dataset.variable("a", TypeCode::Int8)
        .variable("b", TypeCode::Int16)
        .variable("c", TypeCode::Float)
        .row({9.0, 10.0, 2.5})
        .row({10.0, 9.0, 12.0});
    EXPECT_EQ(selected(dataset, "a > 9"), Rows{2});
    EXPECT_EQ(selected(dataset, "b >= 10"), Rows{1});
    EXPECT_EQ(selected(dataset, "c < 12"), Rows{1});
}

TEST(CompiledCondition, ignoresTrailingBlanksThatAReaderKept)
{
    ScriptedDataset dataset(SourceKind::Csv);
    dataset.variable("s", TypeCode::Character)
        .row({"ab"})
        .row({"ab  "})
        .row({"   "})
        .row({""})
        .row({" ab"})
        .row({"ab\t"});
    EXPECT_EQ(selected(dataset, "s = 'ab'"), (Rows{1, 2}));
    EXPECT_EQ(selected(dataset, "s ^= 'ab '"), (Rows{3, 4, 5, 6}));
    EXPECT_EQ(selected(dataset, "s in ('ab ', ' ab')"), (Rows{1, 2, 5}));
    EXPECT_EQ(selected(dataset, "s is null"), (Rows{3, 4}));
    EXPECT_EQ(selected(dataset, "s <= 'ab'"), (Rows{1, 2, 3, 4, 5}));
    EXPECT_EQ(selected(dataset, "s contains 'ab '"), Rows{}) << "the text ends before its blanks";
}

TEST(CompiledCondition, worksWithoutObservations)
{
    ScriptedDataset dataset;
    dataset.variable("A", TypeCode::Double).variable("B", TypeCode::Character);
    EXPECT_EQ(selected(dataset, "A > 1 or B = 'x' or B contains 'y'"), Rows{});
    EXPECT_NE(refusal(dataset, "C = 1"), "none");
}

/// A table large enough for several words of 64 rows and for texts that hardly repeat.
class LargeTable : public testing::Test
{
protected:
    static constexpr int rows = 200'003;

    static double number(int row) { return row % 7 == 3 ? missing : (row * 37) % 101; }
    static std::string few(int row) { return std::string(1, static_cast<char>('A' + row % 5)); }
    static std::string some(int row) { return "T" + std::to_string(row * 7919 % 9973); }
    static std::string unique(int row) { return "ID-" + std::to_string(row); }

    static void SetUpTestSuite()
    {
        s_dataset = std::make_unique<ScriptedDataset>();
        s_dataset->variable("N", TypeCode::Double)
            .variable("FEW", TypeCode::Character)
            .variable("SOME", TypeCode::Character)
            .variable("UNIQUE", TypeCode::Character)
            .rows(rows, [](int row, int column) -> ScriptedDataset::Value {
                switch (column) {
                case 0:
                    return number(row);
                case 1:
                    return few(row);
                case 2:
                    return some(row);
                default:
                    return unique(row);
                }
            });
    }
    static void TearDownTestSuite() { s_dataset.reset(); }

    template <typename Expected>
    static void check(const char* condition, Expected expected)
    {
        Rows wanted;
        for (int row = 0; row < rows; ++row) {
            if (expected(row)) {
                wanted.push_back(row + 1);
            }
        }
        EXPECT_GT(wanted.size(), 0U) << condition;
        EXPECT_EQ(selected(*s_dataset, condition), wanted) << condition;
    }

    static std::unique_ptr<ScriptedDataset> s_dataset;
};

std::unique_ptr<ScriptedDataset> LargeTable::s_dataset;

TEST_F(LargeTable, isFilteredRowByRow)
{
    const auto contains = [](const std::string& text, const char* part) {
        return text.find(part) != std::string::npos;
    };
    check("N > 60", [](int row) { return number(row) > 60; });
    check("N > 60 and FEW = 'B'", [](int row) { return number(row) > 60 && few(row) == "B"; });
    check("N is null or FEW in ('A', 'E')",
          [](int row) { return std::isnan(number(row)) || few(row) == "A" || few(row) == "E"; });
    check("SOME contains '99'", [&](int row) { return contains(some(row), "99"); });
    check("UNIQUE contains '77' and SOME contains '7'",
          [&](int row) { return contains(unique(row), "77") && contains(some(row), "7"); });
    check("UNIQUE = 'ID-123456'", [](int row) { return row == 123456; });
    check("SOME < 'T2' or UNIQUE >= 'ID-99'",
          [](int row) { return some(row) < "T2" || unique(row) >= "ID-99"; });
    check("index(UNIQUE, '5') = 4", [](int row) { return unique(row).find('5') == 3; });
}

TEST_F(LargeTable, givesTheSameAnswerAgain)
{
    const CompiledCondition condition(u"SOME contains '4' and UNIQUE > 'ID-3'", *s_dataset);
    BitVector first;
    BitVector second(3, 7);
    condition.select(first);
    condition.select(second);
    EXPECT_GT(first.count(), 0U);
    EXPECT_EQ(first, second);
}

}  // namespace
