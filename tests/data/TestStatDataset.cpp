#include "data/StatDataset.h"

#include <gtest/gtest.h>

#include <cmath>
#include <variant>

namespace {

/// One row over every type code, as a reader would fill it.
class OneRow : public StatDataset
{
public:
    OneRow()
    {
        resizeVariables(4);
        m_names = {"SITE", "VISIT", "DOSE", "pulse"};
        m_labels = {"Site", "", "Dose (mg)", ""};
        m_formats = {"A8", "F3.0", "F8.2", "F3.0"};
        m_typeCodes = {TypeCode::Character, TypeCode::Int32, TypeCode::Double, TypeCode::Float};
        m_lengths = {8, 4, 8, -1};
        m_observationCount = 1;
        m_cells.emplace_back(m_textPool.intern("  Basel "));
        for (const double number : {3.0, 2.5, 61.0}) {
            m_cells.emplace_back(number);
        }
        resizeBits();
    }
};

TEST(StatDataset, showsCharacterAndDoubleCellsOnly)
{
    const OneRow dataset;
    EXPECT_EQ(dataset.cellText(0, 0), "Basel");
    EXPECT_EQ(dataset.stringValue(0, 0), "  Basel ");
    EXPECT_EQ(dataset.cellText(0, 1), "") << "the base rule leaves narrower numbers empty";
    EXPECT_EQ(dataset.cellText(0, 2), "2.5") << "formats are the readers' matter";
    for (const auto& [row, column] :
         {std::pair(1, 0), std::pair(-1, 0), std::pair(0, 4), std::pair(0, -1)}) {
        EXPECT_EQ(dataset.cellText(row, column), "") << row << ' ' << column;
    }
}

TEST(StatDataset, tellsTypesApart)
{
    const OneRow dataset;
    EXPECT_TRUE(dataset.isCharacter(0));
    EXPECT_FALSE(dataset.isNumeric(0));
    for (const int column : {1, 2, 3}) {
        EXPECT_TRUE(dataset.isNumeric(column)) << column;
        EXPECT_FALSE(dataset.isCharacter(column)) << column;
    }
    EXPECT_THROW(static_cast<void>(dataset.stringValue(0, 2)), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(dataset.numericValue(0, 0)), std::bad_variant_access);
}

TEST(StatDataset, describesItsVariables)
{
    const OneRow dataset;
    const auto text = [&](int column, int attribute) {
        return dataset.variableAttribute(column, static_cast<VariableAttribute>(attribute));
    };
    EXPECT_EQ(text(2, 1), "DOSE");
    EXPECT_EQ(text(2, 2), "Numeric");
    EXPECT_EQ(text(1, 2), "Character") << "kept: type codes 1 to 4 read so";
    EXPECT_EQ(text(3, 3), "-1");
    EXPECT_EQ(text(2, 4), "F8.2");
    EXPECT_EQ(text(2, 5), "");
    EXPECT_EQ(text(2, 6), "Dose (mg)");
    EXPECT_EQ(text(2, 0), "");
    EXPECT_EQ(text(2, 7), "");
}

TEST(StatDataset, findsTheFirstVariableOfAName)
{
    const OneRow dataset;
    EXPECT_EQ(dataset.findVariable(L"dose"), 2);
    EXPECT_EQ(dataset.findVariable(L"PULSE"), 3) << "letters of both are the same";
    EXPECT_EQ(dataset.findVariable(L"DOSE "), -1);
    EXPECT_EQ(dataset.findVariable(L""), -1);
}

}  // namespace
