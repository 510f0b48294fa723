#include "analysis/comparison/DifferenceList.h"
#include "analysis/comparison/DifferenceRows.h"
#include "analysis/comparison/TextDifference.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

using comparison::Comparison;
using comparison::DifferenceFilter;
using comparison::DifferenceRows;
using comparison::TextRange;
using Place = DifferenceRows::Place;

constexpr int whole = DifferenceRows::wholeObservation;

void describe(ScriptedDataset& dataset)
{
    dataset.variable("ID", TypeCode::Double);
    dataset.variable("AGE", TypeCode::Double);
    dataset.variable("SAME", TypeCode::Double);
    dataset.variable("SEX", TypeCode::Character);
}

/// ID 1 is equal, 2 differs in a number and a text, 3 and 6 are in one dataset only, 4 differs in a
/// text, 5 in a number.
class Differences : public testing::Test
{
protected:
    Differences()
    {
        describe(m_base);
        describe(m_compare);
        m_base.row({1.0, 30.0, 7.0, "F"}).row({2.0, 40.0, 7.0, "M"}).row({3.0, 50.0, 7.0, "M"});
        m_base.row({4.0, 60.0, 7.0, "F"}).row({5.0, 70.0, 7.0, "F"});
        m_compare.row({1.0, 30.0, 7.0, "F"}).row({2.0, 41.0, 7.0, "F"}).row({4.0, 60.0, 7.0, "M"});
        m_compare.row({5.0, 77.0, 7.0, "F"}).row({6.0, 80.0, 7.0, "a,\"b\"\tc"});
        m_comparison = Comparison::of(m_base, m_compare, {.id = {"ID"}}).value();
    }

    /// Each row as the number of its group and the letter of its line.
    [[nodiscard]] std::string rows(const DifferenceFilter& filter) const
    {
        const DifferenceRows shown(m_comparison, filter);
        std::string text;
        for (std::size_t i = 0; i < shown.rowCount(); ++i) {
            const DifferenceRows::Row row = shown.row(i);
            text += std::to_string(row.group) + "bcd%BC"[static_cast<int>(row.line)];
        }
        return text;
    }

    ScriptedDataset m_base;
    ScriptedDataset m_compare;
    Comparison m_comparison;
};

TEST_F(Differences, showWhatIsAskedFor)
{
    EXPECT_EQ(rows({}), "0b0c0d1B2b2c3b3c3d4C") << "a line of differences where numbers differ";
    EXPECT_EQ(rows({.percent = true}), "0b0c0d0%1B2b2c3b3c3d3%4C");
    EXPECT_EQ(rows({.onlyDifferingObservations = false}), "0b0c1b1c1d2B3b3c4b4c4d5C");
    BitVector age(3);
    age.set(0);
    EXPECT_EQ(rows({.hidden = age}), "0b0c1B2b2c3C") << "a hidden variable makes no difference";

    using Variables = std::vector<std::size_t>;
    EXPECT_EQ(DifferenceRows(m_comparison, {}).variables(), (Variables{0, 2}));
    EXPECT_EQ(DifferenceRows(m_comparison, {.onlyDifferingVariables = false}).variables(),
              (Variables{0, 1, 2}));
    EXPECT_EQ(DifferenceRows(m_comparison, {.hidden = age}).variables(), (Variables{2}));
}

TEST_F(Differences, areWalkedThroughInBothDirections)
{
    const DifferenceRows rows(m_comparison, {});
    const std::vector<Place> all{{0, 0}, {0, 1}, {1, whole}, {2, 1}, {3, 0}, {4, whole}};
    ASSERT_EQ(rows.differenceCount(), all.size());
    const std::vector<Place> between{{0, whole}, {1, 0}, {1, 1}, {2, 0}, {3, 1}, {4, 1}};
    const std::vector<std::size_t> before{0, 3, 3, 3, 5, 6};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto next = rows.next(all[i]);
        const auto previous = rows.previous(all[i]);
        ASSERT_TRUE(next && previous);
        EXPECT_EQ(next->place, all[(i + 1) % all.size()]) << i;
        EXPECT_EQ(next->isWrapped, i + 1 == all.size()) << i;
        EXPECT_EQ(previous->place, all[(i + all.size() - 1) % all.size()]) << i;
        EXPECT_EQ(previous->isWrapped, i == 0) << i;
        EXPECT_TRUE(rows.isDifference(all[i])) << i;
        EXPECT_FALSE(rows.isDifference(between[i])) << i;
        EXPECT_EQ(rows.next(between[i])->place, all[before[i] % all.size()]) << i;
        EXPECT_EQ(rows.previous(between[i])->place, all[(before[i] + 5) % all.size()]) << i;
    }
    const Comparison same = Comparison::of(m_base, m_base, {}).value();
    const DifferenceRows equal(same, {});
    EXPECT_EQ(equal.rowCount(), 0U);
    EXPECT_FALSE(DifferenceRows(same, {.onlyDifferingObservations = false}).next({0, whole}));
}

TEST_F(Differences, keepTheirPlaceWhenOthersAreShown)
{
    const DifferenceRows few(m_comparison, {});
    const DifferenceRows all(m_comparison, {.onlyDifferingObservations = false});
    EXPECT_EQ(all.groupAt(few.pairNumber(2)), 3U);
    EXPECT_EQ(few.groupAt(all.pairNumber(0)), 0U) << "the next one that is shown";
    EXPECT_EQ(few.groupAt(99), few.groupCount());
    EXPECT_EQ(few.firstRow(2), 4U);
}

TEST_F(Differences, areListedForFiles)
{
    const comparison::DifferenceList list(m_comparison);
    std::string csv;
    std::string tsv;
    list.forEachLine([&](const comparison::DifferenceList::Line& line) {
        csv += listLine(line, comparison::ListFormat::Csv);
        tsv += listLine(line, comparison::ListFormat::Tsv);
    });
    EXPECT_EQ(csv,
              "base only,,3,,3,,,,\n"
              "compare only,,,5,6,,,,\n"
              "value,AGE,2,2,2,40,41,1,2.5\n"
              "value,AGE,5,4,5,70,77,7,10\n"
              "value,SEX,2,2,2,M,F,,\n"
              "value,SEX,4,3,4,F,M,,\n");
    EXPECT_EQ(tsv.find("compare only\t\t\t5\t6\t\t\t\t\n"), 20U);
    const comparison::DifferenceList::Line hard{"a,b", "say \"no\"", "two\nlines", "tab\there"};
    EXPECT_EQ(listLine(hard, comparison::ListFormat::Csv),
              "\"a,b\",\"say \"\"no\"\"\",\"two\nlines\",tab\there\n");
    EXPECT_EQ(listLine(hard, comparison::ListFormat::Tsv),
              "a,b\tsay \"no\"\ttwo\\nlines\ttab\\there\n");
}

struct Texts
{
    const char* base;
    const char* compare;
    /// The texts again, with what differs in brackets.
    const char* markedBase;
    const char* markedCompare;
};

std::string marked(std::string text, const std::vector<TextRange>& ranges)
{
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        text.insert(range->end, "]").insert(range->begin, "[");
    }
    return text;
}

TEST(TextDifference, isTheLettersThatOneTextHasForItself)
{
    const std::vector<Texts> cases{
        {"same", "same", "same", "same"},
        {"", "new", "", "[new]"},
        {"Mild", "mild", "[M]ild", "[m]ild"},
        {"HEADACHE", "HEADACHES", "HEADACHE", "HEADACHE[S]"},
        {"SITE 01, arm A", "SITE 10, arm B", "SITE [0]1, arm [A]", "SITE 1[0], arm [B]"},
        {"NAUSEA", "VOMITING", "[NAUSEA]", "[VOMITING]"},
        {"Größe 1", "Grüße 1", "Gr[ö]ße 1", "Gr[ü]ße 1"},
        {"\xE2\x82\xAC 5", "\xE2\x82\xA9 5", "[\xE2\x82\xAC] 5", "[\xE2\x82\xA9] 5"},
        {"x\xE2\x82\xAC", "x\xE2\x82", "x[\xE2\x82\xAC]", "x[\xE2\x82]"},
    };
    for (const Texts& texts : cases) {
        const comparison::TextDifference found =
            comparison::textDifference(texts.base, texts.compare);
        EXPECT_EQ(marked(texts.base, found.base), texts.markedBase);
        EXPECT_EQ(marked(texts.compare, found.compare), texts.markedCompare);
    }
}

/// Without their marked letters two texts are the same, whatever they are.
TEST(TextDifference, leavesTheSameOfBothTexts)
{
    std::mt19937 random(7);  // NOLINT(cert-msc51-cpp): the same texts each time
    const auto text = [&random](std::size_t longest) {
        std::string made;
        for (auto left = random() % longest; left > 0; --left) {
            made += std::array{"a", "b", "ö", "日"}.at(random() % 4);
        }
        return made;
    };
    const auto rest = [](std::string left, const std::vector<TextRange>& ranges) {
        for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
            left.erase(range->begin, range->end - range->begin);
        }
        return left;
    };
    for (int i = 0; i < 300; ++i) {
        const std::string base = text(i < 290 ? 12 : 400);
        const std::string compare = text(i < 290 ? 12 : 400);
        const comparison::TextDifference found = comparison::textDifference(base, compare);
        EXPECT_EQ(rest(base, found.base), rest(compare, found.compare)) << base << ", " << compare;
    }
}

}  // namespace
