#include "data/cells/CellLoader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace {

/// A dataset of a text and a number, as readers have them before they read cells.
class Described : public StatDataset
{
public:
    Described()
    {
        resizeVariables(2);
        m_typeCodes = {TypeCode::Character, TypeCode::Double};
    }
};

TEST(CellLoader, countsTheRowsThatCome)
{
    Described dataset;
    CellLoader loader(dataset);
    loader.beginUncounted();
    for (int row = 0; row < 1000; ++row) {
        loader.putText(row, 0, "S" + std::to_string(row % 70));
        loader.putNumber(row, 1, row);
    }
    loader.finish();
    ASSERT_EQ(dataset.observationCount(), 1000);
    ASSERT_EQ(dataset.cellCount(), 2000U);
    for (int row = 0; row < 1000; ++row) {
        ASSERT_EQ(dataset.stringValue(row, 0), "S" + std::to_string(row % 70));
        ASSERT_EQ(dataset.numericValue(row, 1), row);
    }
    EXPECT_EQ(dataset.textPool().size(), 70U);
    EXPECT_EQ(std::get<0>(dataset.cell(0, 0))->references(), 15U);
}

TEST(CellLoader, takesCellsInAnyOrderAndTheSecondOfTwo)
{
    Described dataset;
    CellLoader loader(dataset);
    loader.begin(3);
    for (int row = 2; row >= 0; --row) {
        loader.putNumber(row, 1, row);
        loader.putText(row, 0, "first");
    }
    loader.putText(1, 0, "second");
    loader.putText(2, 0, "first");
    loader.putText(2, 0, "third");
    loader.putMissing(0, 1);
    loader.finish();
    EXPECT_EQ(dataset.stringValue(0, 0), "first");
    EXPECT_EQ(dataset.stringValue(1, 0), "second");
    EXPECT_EQ(dataset.stringValue(2, 0), "third");
    EXPECT_TRUE(std::isnan(dataset.numericValue(0, 1)));
    EXPECT_EQ(dataset.numericValue(2, 1), 2);
}

TEST(CellLoader, leavesCellsThatGotNothingMissing)
{
    Described dataset;
    CellLoader loader(dataset);
    loader.begin(3);
    loader.putText(1, 0, " a ");
    loader.putNumber(2, 1, 5);
    loader.finish();
    EXPECT_EQ(dataset.observationCount(), 3);
    EXPECT_EQ(dataset.stringValue(0, 0), "");
    EXPECT_NE(std::get<0>(dataset.cell(0, 0)), nullptr);
    EXPECT_EQ(dataset.stringValue(1, 0), " a ");
    EXPECT_TRUE(std::isnan(dataset.numericValue(1, 1)));
    EXPECT_EQ(dataset.numericValue(2, 1), 5);
}

class Wide : public StatDataset
{
public:
    Wide() { resizeVariables(5000); }
};

TEST(CellLoader, takesTextsOfMoreColumnsThanItRemembersApart)
{
    Wide dataset;
    CellLoader loader(dataset);
    loader.begin(3);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 5000; ++column) {
            loader.putText(row, column, "v" + std::to_string(column % 3000 + row % 2));
        }
    }
    loader.finish();
    for (int column = 0; column < 5000; ++column) {
        ASSERT_EQ(dataset.stringValue(2, column), "v" + std::to_string(column % 3000));
    }
    EXPECT_EQ(dataset.textPool().size(), 3001U);
}

TEST(CellLoader, refusesWhatBelongsToNoCell)
{
    Described dataset;
    CellLoader loader(dataset);
    loader.begin(2);
    EXPECT_THROW(loader.putNumber(2, 1, 0), std::out_of_range);
    EXPECT_THROW(loader.putNumber(-1, 1, 0), std::out_of_range);
    EXPECT_THROW(loader.putText(0, -1, ""), std::out_of_range);
    EXPECT_THROW(loader.putNumber(1, 2, 0), std::out_of_range);
}

TEST(CellLoader, tellsTextsApartByTheirBytesInTheFile)
{
    Described dataset;
    CellLoader loader(dataset);
    loader.setDecoder(TextDecoder("WINDOWS-1252"));
    loader.begin(3);
    // The bytes of the second are what the first is converted to, and they are remembered in the
    // same place.
    loader.putText(0, 0,
                   "a\xFC"
                   "c0xx");
    loader.putText(1, 0,
                   "a\xC3\xBC"
                   "c0xx");
    loader.putText(2, 0,
                   "a\xFC"
                   "c0xx");
    loader.finish();
    EXPECT_EQ(dataset.stringValue(0, 0), "aüc0xx");
    EXPECT_EQ(dataset.stringValue(1, 0), "aÃ¼c0xx");
    EXPECT_EQ(std::get<0>(dataset.cell(2, 0)), std::get<0>(dataset.cell(0, 0)));
}

TEST(CellLoader, onlyCountsRowsWhereNoValuesAreWanted)
{
    Described dataset;
    dataset.setValuesWanted(false);
    CellLoader loader(dataset);
    loader.beginUncounted();
    loader.putText(0, 0, "a");
    loader.putMissing(6, 1);
    loader.finish();
    EXPECT_EQ(dataset.observationCount(), 7);
    EXPECT_EQ(dataset.cellCount(), 0U);
}

}  // namespace
