#include "analysis/comparison/Comparison.h"
#include "data/InMemoryDataset.h"
#include "data/values/MissingTag.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using comparison::Comparison;
using comparison::EqualityRule;
using comparison::Method;
using comparison::ObservationPair;
using comparison::Request;

constexpr double missing = ScriptedDataset::missing;
constexpr double infinity = HUGE_VAL;
constexpr auto none = comparison::noObservation;

/// A dataset of one numeric variable, X, with these values.
std::unique_ptr<ScriptedDataset> numbers(std::initializer_list<double> values,
                                         SourceKind kind = SourceKind::Sas)
{
    auto dataset = std::make_unique<ScriptedDataset>(kind);
    dataset->variable("X", TypeCode::Double);
    for (const double value : values) {
        dataset->row({value});
    }
    return dataset;
}

Comparison compared(const StatDataset& base, const StatDataset& compare,
                    const Request& request = {})
{
    Result<Comparison> result = Comparison::of(base, compare, request);
    EXPECT_TRUE(result) << result.error();
    return std::move(result.value());
}

using Places = std::vector<std::uint32_t>;

Places unequal(std::initializer_list<double> base, std::initializer_list<double> compare,
               const Request& request)
{
    return compared(*numbers(base), *numbers(compare), request).values().at(0).unequal;
}

TEST(Comparison, aMethodMeasuresAndADifferenceOfTheCriterionIsEqual)
{
    const auto x = {1.0, 1.0, 0.5, 0.0, 0.0, -4.0, infinity, 1e308};
    const auto y = {1.25, 1.1, 0.6, 0.0, 0.1, -5.0, -infinity, 1.2e308};
    EXPECT_EQ(unequal(x, y, {}), (Places{0, 1, 2, 4, 5, 6, 7}));
    EXPECT_EQ(unequal(x, y, {.method = Method::Absolute, .criterion = 0.25}), (Places{5, 6, 7}));
    EXPECT_EQ(unequal(x, y, {.method = Method::Absolute, .criterion = 0.1}),
              (Places{0, 1, 5, 6, 7}))
        << "1.1 - 1 is more than 0.1 in doubles, 0.6 - 0.5 is not";
    EXPECT_EQ(unequal(x, y, {.method = Method::Percent, .criterion = 25}), (Places{4, 6}));
    // 0.25/1.125, 0.1/1.05, 0.1/0.55, 0.1/0.05, 1/4.5, inf, 0.2/1.1
    EXPECT_EQ(unequal(x, y, {.method = Method::Relative, .criterion = 0.2}), (Places{0, 4, 5, 6}));
    EXPECT_EQ(unequal(x, y, {.method = Method::Relative, .criterion = 0.1}),
              (Places{0, 2, 4, 5, 6, 7}))
        << "1e308 + 1.2e308 is beyond a double, their mean is not";
    // 0.25/1.625, 0.1/1.55, 0.1/1.05, 0.1/0.55, 1/5, inf, 0.2/1.1
    EXPECT_EQ(unequal(x, y, {.method = Method::Relative, .criterion = 0.19, .delta = 0.5}),
              (Places{5, 6}));
    EXPECT_EQ(unequal(x, y, {.criterion = 0.2}), (Places{0, 4, 5, 6})) << "RELATIVE";
}

TEST(Comparison, criteriaThatAreNotGivenHaveTheirDefaults)
{
    EXPECT_EQ(unequal({0, 0, 1}, {1e-5, 1.1e-5, 2}, {.method = Method::Absolute}), (Places{1, 2}));
    // A negative criterion counts machine epsilons: 2^-51 apart and 2^-50 apart.
    EXPECT_EQ(
        unequal({1, 1}, {1 + 0x1p-51, 1 + 0x1p-50}, {.method = Method::Absolute, .criterion = -2}),
        (Places{1}));
    const auto relative = EqualityRule::of({}, 0.00001, {});
    ASSERT_TRUE(relative);
    EXPECT_NEAR(relative.value().delta(), 2.22e-10, 1e-12);
    EXPECT_EQ(EqualityRule::of(Method::Relative, 0.00001, {}).value().delta(), 0);
    EXPECT_EQ(EqualityRule::of(Method::Exact, 5.0, {}).value().criterion(), 0);
    EXPECT_FALSE(EqualityRule::of(Method::Relative, {}, 1.5));
    EXPECT_FALSE(EqualityRule::of(Method::Absolute, {}, 0.5));
    EXPECT_FALSE(EqualityRule::of({}, std::nan(""), {}));
}

TEST(Comparison, aMissingNumberEqualsTheSameMissingOnly)
{
    const double a = missingtag::number('A');
    const double b = missingtag::number('B');
    const auto x = {missing, a, a, missing, 1.0, missing};
    const auto y = {missing, a, b, a, missing, 2.0};
    const auto all = compared(*numbers(x), *numbers(y), {.criterion = 100});
    EXPECT_EQ(all.values().at(0).unequal, (Places{2, 3, 4, 5}));
    EXPECT_EQ(all.values().at(0).missingDifferences, 4U);
    EXPECT_EQ(all.values().at(0).maximum, 0) << "a missing number is no distance away";
    EXPECT_EQ(unequal(x, y, {.missingBaseEqualsAll = true}), (Places{4}));
    EXPECT_EQ(unequal(x, y, {.missingCompareEqualsAll = true}), (Places{5}));
    const auto base = numbers(x);
    const auto compare = numbers(y);
    const auto neither =
        compared(*base, *compare, {.missingBaseEqualsAll = true, .missingCompareEqualsAll = true});
    EXPECT_EQ(neither.unequalValues(), 0U);
    EXPECT_EQ(neither.inexactValues(), 4U);
    EXPECT_EQ(neither.sysInfo(), 0U);
}

TEST(Comparison, whatIsMissingIsTheDatasetsToSay)
{
    // R's missing integer and "N/A", -infinity of computed data, .a of Stata.
    ScriptedDataset r(SourceKind::R);
    r.variable("I", TypeCode::Int32).variable("T", TypeCode::Character);
    r.row({-2147483648.0, "N/A"}).row({7.0, "b"});
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "I"}).addVariable({.name = "T", .type = TypeCode::Character});
    builder.addMissing().addNullText().addNumber(7).addText("b");
    const auto computed = builder.build();
    EXPECT_EQ(compared(r, *computed).unequalValues(), 0U);
    ScriptedDataset sas;
    sas.variable("I", TypeCode::Double).variable("T", TypeCode::Character);
    sas.row({-2147483648.0, "N/A"}).row({7.0, "b"});
    const auto differing = compared(r, sas);
    EXPECT_EQ(differing.unequalValues(), 2U) << "to SAS both are values";
    EXPECT_EQ(differing.values()[1].missingDifferences, 1U);
    EXPECT_EQ(compared(*numbers({missingtag::number('A')}),
                       *numbers({missingtag::number('a')}, SourceKind::Stata))
                  .unequalValues(),
              0U);
}

TEST(Comparison, textsAreEqualUpToTrailingBlanks)
{
    ScriptedDataset base;
    ScriptedDataset compare;
    base.variable("T", TypeCode::Character);
    compare.variable("T", TypeCode::Character);
    for (const char* const text : {"def", "ghi", " x", "", "y ", "  ", "z"}) {
        base.row({text});
    }
    for (const char* const text : {"def  ", "GHI", "x", "  ", "y\t", "q", "zz"}) {
        compare.row({text});
    }
    const auto result = compared(base, compare);
    EXPECT_EQ(result.values().at(0).unequal, (Places{1, 2, 4, 5, 6}));
    EXPECT_EQ(result.values().at(0).missingDifferences, 1U);
    EXPECT_EQ(compared(base, compare, {.missingBaseEqualsAll = true}).values()[0].unequal,
              (Places{1, 2, 4, 6}));
}

TEST(Comparison, textsOfManyObservationsAreToldApartByPosition)
{
    // The same pairs of texts come again and again, equal ones and others, in several blocks.
    ScriptedDataset base;
    ScriptedDataset compare;
    base.variable("T", TypeCode::Character);
    compare.variable("T", TypeCode::Character);
    Places expected;
    for (std::uint32_t row = 0; row < 1000; ++row) {
        const bool differs = row % 13 == 5;
        base.row({"text " + std::to_string(row % 300)});
        compare.row({"text " + std::to_string(row % 300 + (differs ? 1 : 0))});
        if (differs) {
            expected.push_back(row);
        }
    }
    EXPECT_EQ(compared(base, compare).values().at(0).unequal, expected);
}

TEST(Comparison, datesAreComparedOnOneScaleWhereBothSidesShowSome)
{
    class Dates : public ScriptedDataset
    {
    public:
        Dates(SourceKind kind, const std::string& format, double value)
            : ScriptedDataset(kind)
        {
            variable("D", TypeCode::Double);
            m_formats[0] = format;
            row({value});
        }
    };
    // 2 January 1970: 3654 days from 1960, 1 day from 1970, 141429 days from 14 October 1582.
    const Dates sas(SourceKind::Sas, "DATE", 3654);
    const Dates r(SourceKind::R, "%d%b%Y", 1);
    const Dates spss(SourceKind::Spss, "DATE", 141429.0 * 86400);
    const auto csv = Dates(SourceKind::Csv, "", 3654);
    EXPECT_EQ(compared(sas, r).unequalValues(), 0U);
    EXPECT_EQ(compared(r, spss).unequalValues(), 0U);
    EXPECT_EQ(compared(sas, csv).unequalValues(), 0U);
    EXPECT_EQ(compared(r, csv).unequalValues(), 1U) << "a plain number is no date";
    const Dates later(SourceKind::R, "%d%b%Y", 11);
    const auto result = compared(spss, later);
    const auto numbers = result.numbers(result.values().at(0), {0, 0});
    EXPECT_EQ(numbers.base, 3654);
    EXPECT_EQ(numbers.difference, 10) << "days";
    EXPECT_NEAR(numbers.percent, 1000 / 3654.0, 1e-12);
    EXPECT_EQ(compared(sas, r, {.id = {"D"}}).observations().matched(), 1U);
}

/// ID and value, in the order of the files.
std::unique_ptr<ScriptedDataset> keyed(std::initializer_list<std::pair<double, double>> rows)
{
    auto dataset = std::make_unique<ScriptedDataset>();
    dataset->variable("ID", TypeCode::Double).variable("X", TypeCode::Double);
    for (const auto& [id, value] : rows) {
        dataset->row({id, value});
    }
    return dataset;
}

TEST(Comparison, observationsArePairedByIdAndDuplicatesInOrder)
{
    const auto base = keyed({{1, 1}, {1, 2}, {2, 3}, {3, 4}, {3, 5}, {3, 6}});
    const auto compare = keyed({{3, 4}, {2, 9}, {4, 7}, {1, 1}, {3, 5}});
    const auto result = compared(*base, *compare, {.id = {"id"}});
    EXPECT_EQ(result.observations().pairs,
              (std::vector<ObservationPair>{
                  {0, 3}, {1, none}, {2, 1}, {3, 0}, {4, 4}, {5, none}, {none, 2}}));
    EXPECT_EQ(result.values().at(0).unequal, (Places{2}));
    EXPECT_EQ(result.observations().base.duplicates, 3U);
    EXPECT_EQ(result.observations().compare.duplicates, 1U);
    EXPECT_EQ(result.observations().matched(), 4U);
    EXPECT_EQ(result.sysInfo(), 64U + 128U + 4096U);
    const auto notes = result.notes();
    ASSERT_EQ(notes.size(), 3U);
    EXPECT_NE(notes[0].find("observation number 2: ID=1"), std::string::npos) << notes[0];
    EXPECT_NE(notes[1].find("not sorted"), std::string::npos) << notes[1];
    EXPECT_NE(notes[2].find("observation number 5: ID=3"), std::string::npos) << notes[2];
}

TEST(Comparison, idsOrderByAllTheirVariablesWithMissingsApart)
{
    const auto make = [](std::initializer_list<std::pair<const char*, double>> rows) {
        auto dataset = std::make_unique<ScriptedDataset>();
        dataset->variable("S", TypeCode::Character).variable("N", TypeCode::Double);
        for (const auto& [text, number] : rows) {
            dataset->row({text, number});
        }
        return dataset;
    };
    const double a = missingtag::number('A');
    const double low = missingtag::number('_');
    const auto base =
        make({{"b", 1}, {"a", 0.0}, {"a", -1e300}, {"a", a}, {"a", missing}, {"a", low}, {"", 5}});
    const auto compare = make({{"a ", low}, {"a", missing}, {"b ", 1}, {"a", -0.0}, {"c", 0}});
    const auto result = compared(*base, *compare, {.id = {"S", "N"}});
    EXPECT_EQ(result.observations().pairs,
              (std::vector<ObservationPair>{
                  {6, none}, {5, 0}, {4, 1}, {3, none}, {2, none}, {1, 3}, {0, 2}, {none, 4}}));
}

TEST(Comparison, filtersAndHiddenVariablesAreLeftOut)
{
    const auto base = keyed({{1, 1}, {2, 2}, {3, 3}});
    const auto compare = keyed({{1, 1}, {3, 4}});
    base->datasetFilterMask().reset(1);
    const auto result = compared(*base, *compare);
    EXPECT_EQ(result.observations().pairs, (std::vector<ObservationPair>{{0, 0}, {2, 1}}));
    base->visibleVariables().reset(1);
    EXPECT_EQ(compared(*base, *compare).sysInfo(), unsigned{comparison::CompareVariable});
    base->visibleVariables().set(1);
    compare->visibleVariables().reset(1);
    EXPECT_EQ(compared(*base, *compare).sysInfo(), unsigned{comparison::BaseVariable});
}

TEST(Comparison, filtersAndHiddenVariablesMayBePassedOver)
{
    class Counting : public ScriptedDataset
    {
    public:
        [[nodiscard]] bool countsRows(int column) const override { return column == 0; }
    };
    Counting base;
    base.variable("ROW", TypeCode::Double).variable("X", TypeCode::Double);
    base.row({1.0, 1.0}).row({2.0, 2.0});
    base.datasetFilterMask().reset(0);
    base.visibleVariables().reset(0);
    base.visibleVariables().reset(1);
    const auto compare = numbers({1, 3});
    const auto result = compared(base, *compare, {.passesOverFilters = true});
    EXPECT_EQ(result.observations().pairs, (std::vector<ObservationPair>{{0, 0}, {1, 1}}));
    EXPECT_EQ(result.values().at(0).unequal, Places{1});
    EXPECT_TRUE(result.variables().baseOnly.empty()) << "what counts rows is no variable";
}

TEST(Comparison, eachDifferenceHasItsBit)
{
    class Attributes : public ScriptedDataset
    {
    public:
        Attributes()
        {
            variable("X", TypeCode::Double).variable("Y", TypeCode::Double);
            row({1.0, 1.0});
        }
        using StatDataset::m_formats;
        using StatDataset::m_header;
        using StatDataset::m_informats;
        using StatDataset::m_labels;
        using StatDataset::m_lengths;
        using StatDataset::m_typeCodes;
    };
    const auto bits = [](auto change, const Request& request = {}) {
        Attributes base;
        Attributes compare;
        base.m_header.memberType = "DATA";
        change(compare);
        return compared(base, compare, request).sysInfo();
    };
    EXPECT_EQ(bits([](Attributes&) {}), 0U) << "a format without member types";
    EXPECT_EQ(bits([](Attributes& d) { d.m_header.fileLabel = "x"; }), 1U);
    EXPECT_EQ(bits([](Attributes& d) { d.m_header.memberType = "DATA CORR"; }), 2U);
    EXPECT_EQ(bits([](Attributes& d) { d.m_informats[0] = "DATE9."; }), 4U);
    EXPECT_EQ(bits([](Attributes& d) { d.m_formats[0] = "DATE"; }), 8U);
    EXPECT_EQ(bits([](Attributes& d) { d.m_lengths[0] = 4; }), 16U);
    EXPECT_EQ(bits([](Attributes& d) { d.m_labels[0] = "x"; }), 32U);
    const auto conflict = [](Attributes& d) {
        d.m_typeCodes[0] = TypeCode::Character;
        d.m_labels[0] = "x";
    };
    EXPECT_EQ(bits(conflict), 8192U) << "no other attribute of it counts";
    // The labels of the names agree, those of the pair do not.
    Attributes both;
    both.m_labels[0] = "x";
    EXPECT_EQ(compared(both, both, {.var = {"X"}, .with = {"Y"}}).sysInfo(), 32U);
    EXPECT_EQ(compared(both, both, {.id = {"Y"}}).values().size(), 1U) << "IDs are not compared";
}

/// What the procedure prints of its manual's students: 4 against 5 observations, by position.
class Students : public testing::Test
{
protected:
    class Dataset : public ScriptedDataset
    {
    public:
        void setFormat(std::size_t variable, std::string format)
        {
            m_formats[variable] = std::move(format);
        }
        void setLabel(std::string label) { m_header.fileLabel = std::move(label); }
    };

    void SetUp() override
    {
        m_base.tableName("ONE");
        m_base.setLabel("First Data Set");
        m_base.variable("student", TypeCode::Double);
        m_base.variable("year", TypeCode::Character, "Year of Birth");
        m_base.variable("state", TypeCode::Character);
        m_base.variable("gr1", TypeCode::Double).variable("gr2", TypeCode::Double);
        m_base.setFormat(3, "4.1");
        m_base.row({1000.0, "1990", "NC", 85.0, 87.0}).row({1042.0, "1991", "MD", 92.0, 92.0});
        m_base.row({1095.0, "1989", "PA", 78.0, 72.0}).row({1187.0, "1990", "MA", 87.0, 94.0});
        m_compare.tableName("TWO");
        m_compare.setLabel("Second Data Set");
        m_compare.variable("student", TypeCode::Character);
        m_compare.variable("year", TypeCode::Character);
        m_compare.variable("state", TypeCode::Character, "Home State");
        m_compare.variable("gr1", TypeCode::Double).variable("gr2", TypeCode::Double);
        m_compare.variable("major", TypeCode::Character);
        m_compare.setFormat(3, "5.2");
        m_compare.row({"1000", "1990", "NC", 84.0, 87.0, "Math"});
        m_compare.row({"1042", "1991", "MA", 92.0, 92.0, "History"});
        m_compare.row({"1095", "1989", "PA", 79.0, 73.0, "Physics"});
        m_compare.row({"1187", "1990", "MD", 87.0, 74.0, "Dance"});
        m_compare.row({"1204", "1990", "NC", 82.0, 96.0, "French"});
    }

    Dataset m_base;
    Dataset m_compare;
};

TEST_F(Students, countAsTheProcedureCounts)
{
    const auto result = compared(m_base, m_compare);
    EXPECT_EQ(result.variables().common.size(), 5U);
    EXPECT_EQ(result.variables().baseOnly.size(), 0U);
    EXPECT_EQ(result.variables().compareOnly, (std::vector{5}));
    EXPECT_EQ(result.conflictingTypes(), 1U);
    EXPECT_EQ(result.differingAttributes(), 3U);
    EXPECT_EQ(result.unequalObservations().count(), 4U);
    EXPECT_EQ(result.unequalValues(), 6U);
    EXPECT_EQ(result.values().size(), 4U);
    EXPECT_EQ(result.values()[0].unequal.size(), 0U) << "year";
    EXPECT_EQ(result.values()[3].maximum, 20);
    EXPECT_EQ(result.sysInfo(), 1U + 8 + 32 + 128 + 2048 + 4096 + 8192);
    EXPECT_TRUE(result.notes().empty());
}

TEST_F(Students, areComparedByTheVariablesThatAreAskedFor)
{
    const auto result =
        compared(m_base, m_compare,
                 {.var = {"gr1", "GR1", "gr2", "student"}, .with = {"gr1", "gr2", "gr9"}});
    ASSERT_EQ(result.values().size(), 2U);
    EXPECT_EQ(result.values()[0].unequal, (Places{0, 2}));
    EXPECT_EQ(result.values()[1].unequal, (Places{0, 2, 3})) << "85-87, 92-92, 78-73, 87-74";
    ASSERT_EQ(result.notes().size(), 2U);
    EXPECT_NE(result.notes()[0].find("gr9"), std::string::npos);
    EXPECT_NE(result.notes()[1].find("conflicting"), std::string::npos);
}

TEST_F(Students, mayHaveACriterionForOneVariable)
{
    const auto result = compared(
        m_base, m_compare,
        {.method = Method::Percent, .criterion = 1.2, .variableCriteria = {{"gr2", 20.0}}});
    EXPECT_EQ(result.values()[2].unequal, (Places{2})) << "gr1: -1.18 %, 1.28 %";
    EXPECT_EQ(result.values()[3].unequal, (Places{3})) << "gr2: 1.39 %, -21.28 %";
    EXPECT_EQ(result.inexactValues(), 6U);
    const auto own =
        compared(m_base, m_compare,
                 {.method = Method::Exact, .variableCriteria = {{"gr2", 1.0, Method::Absolute}}});
    EXPECT_EQ(own.values()[2].unequal, (Places{0, 2}));
    EXPECT_EQ(own.values()[3].unequal, (Places{3}));
}

TEST_F(Students, areNotComparedByWhatIsNotThere)
{
    const auto error = [this](const Request& request) {
        const auto result = Comparison::of(m_base, m_compare, request);
        return result ? std::string("compared") : result.error();
    };
    EXPECT_NE(error({.id = {"major"}}).find("major in the data set ONE"), std::string::npos);
    EXPECT_NE(error({.id = {"student"}}).find("student is numeric in one"), std::string::npos);
    EXPECT_NE(error({.var = {"major"}}).find("major"), std::string::npos);
    EXPECT_NE(error({.var = {"gr1"}, .with = {"gr1", "gr2"}}).find("WITH"), std::string::npos);
    EXPECT_NE(error({.variableCriteria = {{"state", 1.0}}}).find("state"), std::string::npos);
    EXPECT_EQ(error({.id = {"state", "major"}}).find("compared"), std::string::npos);
    m_base.variable("EXTRA", TypeCode::Double);
    EXPECT_NE(error({.id = {"EXTRA"}}).find("None of the ID"), std::string::npos);
}

}  // namespace
