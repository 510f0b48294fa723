#include "data/InMemoryDataset.h"
#include "data/StoredValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

std::unique_ptr<InMemoryDataset> subjects()
{
    InMemoryDatasetBuilder builder;
    builder.setTableName("DM")
        .addVariable(
            {.name = "USUBJID", .label = "Subject", .type = TypeCode::Character, .length = 9})
        .addVariable({.name = "AGE", .label = "Age"})
        .addVariable({.name = "RFSTDT", .format = "DATE", .width = 9});
    builder.addText(" 001 ").addNumber(63).addNumber(0);
    builder.addNullText().addMissing().addNumber(std::numeric_limits<double>::quiet_NaN());
    return builder.build();
}

TEST(InMemoryDataset, showsWhatWasBuilt)
{
    const auto dataset = subjects();
    EXPECT_EQ(dataset->observationCount(), 2);
    EXPECT_EQ(dataset->cellText(0, 0), "001");
    EXPECT_EQ(dataset->stringValue(0, 0), " 001 ");
    EXPECT_EQ(dataset->cellText(0, 1), "63");
    EXPECT_EQ(dataset->cellText(0, 2), "01Jan1960");
    EXPECT_EQ(dataset->cellText(1, 0), "") << "a null text";
    EXPECT_EQ(dataset->cellText(1, 1), ".") << "the missing marker";
    EXPECT_EQ(storedvalue::text(*dataset, 1, 1), ".");
    EXPECT_EQ(dataset->cellText(1, 2), ".") << "a NaN became the missing marker";
    EXPECT_TRUE(std::isinf(dataset->numericValue(1, 2)));
    EXPECT_EQ(dataset->formatCharacter(std::string_view(), "", 0, 0), "");
}

TEST(InMemoryDataset, checksItsRanges)
{
    const auto dataset = subjects();
    EXPECT_TRUE(std::isnan(dataset->numericValue(0, 0))) << "a text is no number";
    EXPECT_THROW(static_cast<void>(dataset->numericValue(2, 0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(dataset->isNumeric(3)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(dataset->isCharacter(3)), std::out_of_range);
    EXPECT_EQ(dataset->cellText(2, 0), "");
    EXPECT_EQ(dataset->cellText(0, -1), "");
}

TEST(InMemoryDataset, findsNamesInAnyLetterCase)
{
    const auto dataset = subjects();
    EXPECT_EQ(dataset->findVariable(L"age"), 1);
    EXPECT_EQ(dataset->findVariable(L"AG"), -1);
    EXPECT_EQ(dataset->findVariable(L""), -1);
    EXPECT_EQ(dataset->findVariable(L"\u0141GE"), 1)
        << "wide letters are narrowed to one byte first";
}

TEST(InMemoryDatasetBuilder, refusesWhatMakesNoRectangle)
{
    InMemoryDatasetBuilder builder;
    EXPECT_THROW(builder.addNumber(1), std::logic_error);
    EXPECT_THROW(builder.addVariable({.name = "I", .type = TypeCode::Int32}), std::logic_error);
    builder.addVariable({.name = "A"}).addVariable({.name = "B", .type = TypeCode::Character});
    builder.addNumber(1);
    EXPECT_THROW(builder.addNumber(2), std::logic_error) << "B is a character variable";
    EXPECT_THROW(builder.addVariable({.name = "C"}), std::logic_error);
    EXPECT_THROW(static_cast<void>(builder.build()), std::logic_error);
    builder.addText("b");
    const auto dataset = builder.build();
    EXPECT_EQ(dataset->observationCount(), 1);
    EXPECT_EQ(dataset->visibleVariables().count(), 2U);
    EXPECT_TRUE(dataset->libraryFilterMask().all());
    EXPECT_TRUE(dataset->matchedObservations().none());
    EXPECT_TRUE(dataset->datasetFilterMask().all());
}

}  // namespace
