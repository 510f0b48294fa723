#pragma once

#include "data/readers/DatasetFile.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// What a file says of its dataset and variables, as PROC CONTENTS lists it: for the properties of
/// a dataset and for the command line.
namespace contents {

using Value = std::variant<std::string, std::int64_t>;

struct Field
{
    const char* key;  ///< in JSON
    std::string title;  ///< in the user's language
    Value value;
    bool isTold = true;  ///< whether this kind of file knows it; an empty text is not told either
    bool isMessage = false;  ///< whether the value is a sentence of the program's own
};

/// The fields of one heading.
struct Section
{
    std::string title;  ///< in the user's language
    std::vector<Field> fields;
};

/// One variable as people read it.
struct Variable
{
    std::string name;
    std::string type;  ///< "Num" or "Char"; the file's own word where it has finer ones
    std::string length;  ///< bytes; empty where the file tells none
    std::string format;  ///< as it is written: "DATE9."
    std::string informat;
    std::string label;
    int key = 0;  ///< its place among the key variables, from 1; 0 for none
};

/// The dataset, its file (by the path that is given), what else the file says, and what may be
/// wrong with it.
[[nodiscard]] std::vector<Section> sections(const StatDataset& dataset, const QString& path);
[[nodiscard]] std::vector<Variable> variables(const StatDataset& dataset);

/// The titles of the columns of variableRows().
[[nodiscard]] std::vector<std::string> variableTitles(const StatDataset& dataset);
/// Number, name, type, length, format, informat, label and, where the dataset has key
/// variables, the place among them.
[[nodiscard]] std::vector<std::vector<std::string>> variableRows(const StatDataset& dataset);

[[nodiscard]] std::string valueText(const Value& value);
[[nodiscard]] bool isTold(const Field& field);

/// The sections that have something to tell, as text in columns.
[[nodiscard]] std::string fieldsText(const StatDataset& dataset, const QString& path);
/// Everything as text in columns, and as CSV with one line a field or variable.
[[nodiscard]] std::string asText(const StatDataset& dataset, const QString& path);
[[nodiscard]] std::string asCsv(const StatDataset& dataset, const QString& path);

}  // namespace contents
