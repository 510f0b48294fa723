#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A variable as Dataset-JSON describes it; what is missing is empty.
struct DatasetJsonColumn
{
    std::string oid;
    std::string name;
    std::string label;
    std::string dataType;
    std::string targetDataType;
    std::string displayFormat;
    std::optional<std::int64_t> length;
    std::int64_t keySequence = 0;  ///< 0 where it is no key
};

/// All that a Dataset-JSON file tells besides its rows.
struct DatasetJsonMeta
{
    std::string name;
    std::string label;
    std::string created;
    std::string modified;
    std::string systemName;
    std::string systemVersion;
    std::optional<std::int64_t> records;
    bool hasColumns = false;  ///< a list of them, which may be empty
    std::vector<DatasetJsonColumn> columns;
    /// The other members that hold a plain value, in the order of the file.
    std::vector<FileAttribute> attributes;
    std::vector<std::string> notes;
};

/// Reads the object around the rows, in the layout of version 1.1 or of 1.0. Members may come in
/// any order, and of equal ones the last one holds; unknown ones with a plain value are kept,
/// others passed over.
/// @param text  a JSON object, the rows of which may be anything
[[nodiscard]] Result<DatasetJsonMeta> readDatasetJsonMeta(std::string text);
