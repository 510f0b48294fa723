#pragma once

#include "data/cells/CellLoader.h"
#include "data/readers/RdsDoc.h"
#include "data/readers/RFrameFeed.h"

/// Reads one data frame into a dataset: librdata's parser with its callbacks. Throws FileDamage.
class RFrameLoad
{
public:
    /// The dataset, which is empty, and the stream, which stands before the first column, outlive
    /// the load.
    /// @param rows  of the data frame where they are known, else -1
    RFrameLoad(RdsDoc& dataset, RStream& stream, std::int64_t columns, std::int64_t rows);

    /// Reads the columns.
    void run();
    /// Settles the dataset by what stands behind the columns. False, with nothing settled, where
    /// the rows were not those of the first column, as they were taken to be.
    [[nodiscard]] bool complete(const RAttributes& frame);

private:
    static int onColumn(const char* name, rdata_type_t type, void* data, long count,
                        void* context) noexcept;
    static int onText(const char* value, int row, void* context) noexcept;

    void parse();
    void begin(std::int64_t rows);
    void acceptColumn(const void* data, std::size_t count);
    void putIntegers(int column, const RColumn& described, std::span<const std::int32_t> numbers);
    void putFactor(int column, const RAttributes& attributes, std::span<const std::int32_t> codes);
    void putReals(int column, const RColumn& described, std::span<const double> numbers);
    void putLongIntegers(int column, bool asTexts, std::span<const double> numbers);
    void putNothing(int column);
    void describeVariables(const RAttributes& frame);
    void noteWhatIsLeftOut(const RAttributes& frame);

    RdsDoc& m_dataset;
    CellLoader m_cells;
    std::int64_t m_columnCount;
    RFrameFeed m_feed;
    bool m_hasBegun = false;
    int m_column = -1;  ///< that librdata hands over
    std::vector<int> m_columnsWithNothing;  ///< before the cells began
    std::string m_failure;
};
