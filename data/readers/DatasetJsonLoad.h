#pragma once

#include "data/cells/CellLoader.h"
#include "data/readers/DatasetJsonDoc.h"
#include "data/readers/DatasetJsonMeta.h"
#include "data/readers/DatasetJsonRows.h"
#include "data/readers/JsonInput.h"
#include "data/readers/JsonWindow.h"

#include <cstdint>
#include <optional>
#include <string>

/// One load of a Dataset-JSON file. The members around the rows are collected as text and parsed
/// as a whole; the rows are read where they stand when the columns are known by then, else after
/// a second start.
class DatasetJsonLoad
{
public:
    /// Both outlive the load.
    DatasetJsonLoad(DatasetJsonDoc& dataset, const FileReader& file);

    /// Reads the file. Throws std::runtime_error with the reason where that is not possible.
    void run();

private:
    /// Which object is being walked through: version 1.0 nests the rows in three of them.
    enum class Place
    {
        Root,
        Data,
        Groups,
        Group,
        Elsewhere,
    };

    void walkObject(Place place);
    void walkMember(Place place);
    [[nodiscard]] static Place placeOf(Place outer, const std::string& key);
    [[nodiscard]] static bool isRows(Place place, const std::string& key);
    void takeRows();
    void takeTail();

    [[nodiscard]] DatasetJsonMeta metaSoFar() const;
    [[nodiscard]] bool isEnough(const DatasetJsonMeta& meta) const;
    void begin(const DatasetJsonMeta& meta);
    [[nodiscard]] int expectedRows(const DatasetJsonMeta& meta) const;
    void finish();
    void tellNotes(const DatasetJsonMeta& meta);

    DatasetJsonDoc& m_dataset;
    JsonInput m_input;
    JsonWindow m_window;
    CellLoader m_cells;
    std::optional<DatasetJsonRows> m_rows;  ///< from begin() on
    std::string m_text;  ///< the members around the rows
    std::size_t m_openObjects = 0;
    std::int64_t m_rowsOffset = -1;  ///< of rows that stand before the columns
    std::int64_t m_rowCount = 0;
    bool m_hasRows = false;
    bool m_isDone = false;  ///< nothing more is wanted of the file
};
