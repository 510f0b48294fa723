#pragma once

#include "data/cells/CellStore.h"
#include "data/cells/TextPool.h"
#include "data/values/DateScale.h"
#include "data/values/MissingMark.h"

#include <boost/dynamic_bitset.hpp>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// One bit per observation or per variable, in 64-bit words.
using BitVector = boost::dynamic_bitset<std::uint64_t>;

/// How a variable is stored; the numbers are fixed, files and saved settings know them.
enum class TypeCode : std::int32_t
{
    Character = 0,
    Int8 = 1,
    Int16 = 2,
    Int32 = 3,
    Float = 4,
    Double = 5,
};

/// Which kind of file a dataset came from; set by whoever opens the file.
enum class SourceKind : std::int32_t
{
    Sas = 0,
    R = 1,
    Spss = 2,
    Stata = 3,
    Csv = 4,
    DatasetJson = 5,
};

/// The attributes of a variable that can be shown as text; the numbers are the columns of the
/// Variables window.
enum class VariableAttribute : int
{
    Name = 1,
    Type = 2,
    Length = 3,
    Format = 4,
    Informat = 5,
    Label = 6,
};

/// How the values of a file are packed; the first numbers are the format library's.
enum class FileCompression : std::int32_t
{
    None = 0,
    Rows = 1,  ///< repeated bytes of a row
    Binary = 2,  ///< SAS's other way, or zlib in SPSS files
    // The whole file, by one of these programs.
    Gzip = 3,
    Bzip2 = 4,
    Xz = 5,
};

/// The order of the bytes of its numbers; the numbers here are the format library's.
enum class ByteOrder : std::int32_t
{
    None = 0,
    Little = 1,
    Big = 2,
};

/// "none", "rows", "binary", "gzip", "bzip2", "xz".
[[nodiscard]] std::string_view nameOf(FileCompression compression);
/// "little", "big"; empty where there is none.
[[nodiscard]] std::string_view nameOf(ByteOrder order);

/// What a file says about the dataset as a whole. A format that lacks a field leaves it empty or 0.
struct DatasetHeader
{
    std::int64_t creationTime = 0;  ///< seconds since 1970-01-01, as the file reports it
    std::int64_t modificationTime = 0;  ///< seconds since 1970-01-01
    std::int64_t formatVersion = 0;  ///< of the file format: 9 of SAS, 118 of Stata ...
    std::string tableName;
    std::string fileLabel;
    std::string memberType;  ///< "DATA", and the TYPE= attribute where one is set
    std::string encoding;  ///< name of the character set that the file declares
    bool is64Bit = false;
    FileCompression compression = FileCompression::None;
    ByteOrder byteOrder = ByteOrder::None;
    std::string release;  ///< of the program that wrote the file: "9.0401M3"
    std::string host;  ///< with the name and version of its operating system
    std::uint64_t pageSize = 0;  ///< bytes
    std::uint64_t pageCount = 0;
    std::int64_t observationLength = 0;  ///< bytes
    std::int64_t deletedObservations = 0;  ///< still in the file, but not in the dataset
};

/// A name and a text.
using FileAttribute = std::pair<std::string, std::string>;

/// A rectangle of observations by variables, held in memory as a whole.
///
/// Subclasses fill it, one for each kind of file; everyone else reads it through the ten virtual
/// operations and the attribute vectors. Rows and columns count from 0. All texts are UTF-8.
class StatDataset
{
public:
    StatDataset() = default;
    StatDataset(const StatDataset&) = delete;
    StatDataset& operator=(const StatDataset&) = delete;

    /// The text that the grid shows in the cell, without blanks at its ends; empty outside the
    /// rectangle.
    [[nodiscard]] virtual std::string cellText(int row, int column) const;
    /// The attribute of a variable as text; empty for a number that is no attribute.
    [[nodiscard]] virtual std::string variableAttribute(int column,
                                                        VariableAttribute attribute) const;
    /// The number of the first variable of that name in any letter case, or -1.
    [[nodiscard]] virtual int findVariable(std::wstring_view name) const;
    /// The text as its format shows it. A view whose data() is null is a null text and reads as
    /// empty.
    [[nodiscard]] virtual std::string
    formatCharacter(std::string_view text, std::string_view format, int width, int decimals) const;
    /// The number as its format shows it; the fewest digits, and a point for NaN, where the file
    /// knows no formats.
    [[nodiscard]] virtual std::string formatNumeric(double number, std::string_view format,
                                                    int width, int decimals) const;
    virtual ~StatDataset();
    [[nodiscard]] virtual bool isNumeric(int column) const;
    [[nodiscard]] virtual bool isCharacter(int column) const;
    /// The cell's text as it is stored. Throws std::bad_variant_access for a number; the row and
    /// the column are not checked.
    [[nodiscard]] virtual std::string stringValue(int row, int column) const;
    /// The cell's number as it is stored: NaN where missing. Throws std::bad_variant_access for a
    /// text; the row and the column are not checked.
    [[nodiscard]] virtual double numericValue(int row, int column) const;

    // What a variable is comes from the reader of its file, and so does the meaning of its values.

    /// What its cells hold where a number is missing, for walks over whole columns.
    [[nodiscard]] virtual MissingMark missingMark(int column) const;
    /// The text that stands for a missing one besides the empty text; empty where none does.
    [[nodiscard]] virtual std::string_view missingText(int column) const;
    /// Its format as the users of its files write it: "DATE9.", "F8.2", "%9.2f".
    [[nodiscard]] virtual std::string writtenFormat(int column) const;
    /// A text of it as the grid shows it, without blanks at its ends.
    [[nodiscard]] virtual std::string shownText(std::string_view text, int column) const;
    /// Where its values come from if not from the dataset's own file, in lines for people; empty
    /// for all variables of a file.
    [[nodiscard]] virtual std::string variableOrigin(int column) const;
    /// How it counts dates and times; as SAS does unless the reader knows better.
    [[nodiscard]] virtual DateScale dateScale(int column) const;

    /// Whether it only counts the observations, and is none of the dataset's own variables.
    [[nodiscard]] virtual bool countsRows(int /*column*/) const { return false; }

    [[nodiscard]] const DatasetHeader& header() const { return m_header; }
    [[nodiscard]] SourceKind sourceKind() const { return m_sourceKind; }
    void setSourceKind(SourceKind kind) { m_sourceKind = kind; }

    /// What the dataset is called: its own name, or, where its file tells none, what whoever opened
    /// it said.
    [[nodiscard]] const std::string& datasetName() const
    {
        return m_header.tableName.empty() ? m_fallbackName : m_header.tableName;
    }
    void setFallbackName(std::string name) { m_fallbackName = std::move(name); }

    /// What may be wrong with the file although it could be read, a sentence for its user each;
    /// empty where nothing is. What is certainly damaged is not read at all.
    [[nodiscard]] const std::vector<std::string>& damageNotes() const { return m_damageNotes; }
    void addDamageNote(std::string note) { m_damageNotes.push_back(std::move(note)); }

    /// What else the file says about the dataset, by the file's own words and in its order: what
    /// has no place in the header.
    [[nodiscard]] const std::vector<FileAttribute>& fileAttributes() const
    {
        return m_fileAttributes;
    }
    /// The variables that identify an observation, the most important first; empty where the file
    /// tells none.
    [[nodiscard]] const std::vector<int>& keyVariables() const { return m_keyVariables; }

    [[nodiscard]] int observationCount() const { return m_observationCount; }
    [[nodiscard]] int variableCount() const { return m_variableCount; }

    // One entry per variable, in the file's order.
    [[nodiscard]] const std::vector<std::string>& names() const { return m_names; }
    [[nodiscard]] const std::vector<std::string>& labels() const { return m_labels; }
    [[nodiscard]] const std::vector<std::string>& formats() const { return m_formats; }
    [[nodiscard]] const std::vector<std::string>& informats() const { return m_informats; }
    [[nodiscard]] const std::vector<TypeCode>& typeCodes() const { return m_typeCodes; }
    [[nodiscard]] const std::vector<std::int32_t>& lengths() const { return m_lengths; }
    [[nodiscard]] const std::vector<std::int32_t>& formatWidths() const { return m_formatWidths; }
    [[nodiscard]] const std::vector<std::int32_t>& formatDecimals() const
    {
        return m_formatDecimals;
    }

    /// The cell as it is stored, for engines that run over whole columns: cells that share a record
    /// hold the same text. Neither index is checked.
    [[nodiscard]] virtual const CellValue& cell(int row, int column) const;

    /// One bit per variable: set = shown by the grid.
    [[nodiscard]] const BitVector& visibleVariables() const { return m_visibleVariables; }
    [[nodiscard]] BitVector& visibleVariables() { return m_visibleVariables; }
    /// One bit per observation: set = selected by the library filter.
    [[nodiscard]] const BitVector& libraryFilterMask() const { return m_libraryFilterMask; }
    [[nodiscard]] BitVector& libraryFilterMask() { return m_libraryFilterMask; }
    /// One bit per observation: set = matched by the condition evaluated last.
    [[nodiscard]] const BitVector& matchedObservations() const { return m_matchedObservations; }
    [[nodiscard]] BitVector& matchedObservations() { return m_matchedObservations; }
    /// One bit per observation: set = selected by the dataset filter.
    [[nodiscard]] const BitVector& datasetFilterMask() const { return m_datasetFilterMask; }
    [[nodiscard]] BitVector& datasetFilterMask() { return m_datasetFilterMask; }

    /// Whether a load reads cells. Without them it fills only the header and the attribute vectors.
    [[nodiscard]] bool valuesWanted() const { return m_valuesWanted; }
    void setValuesWanted(bool wanted) { m_valuesWanted = wanted; }

    [[nodiscard]] const TextPool& textPool() const { return m_textPool; }
    /// Cells held: observations x variables, or 0 after a metadata-only load.
    [[nodiscard]] std::size_t cellCount() const { return m_cells.size(); }

protected:
    [[nodiscard]] bool inRange(int row, int column) const;
    [[nodiscard]] bool isColumn(int column) const
    {
        return column >= 0 && column < m_variableCount;
    }
    [[nodiscard]] std::size_t cellIndex(int row, int column) const;
    /// The text of a character cell where it is held; empty for a null text.
    [[nodiscard]] std::string_view heldText(int row, int column) const;

    /// Empties the dataset for a load, whatever it held before.
    void reset();
    /// Sets the variable count and gives every attribute vector one entry per variable.
    void resizeVariables(int count);
    /// Sizes the visibility, all shown, and the observation bits: the masks all set, the rest
    /// clear.
    void resizeBits();

    friend class CellLoader;
    friend class ExtendedDataset;

    DatasetHeader m_header;
    int m_observationCount = 0;
    int m_variableCount = 0;
    std::vector<std::string> m_names;
    std::vector<std::string> m_labels;
    std::vector<std::string> m_formats;
    std::vector<std::string> m_informats;  ///< as SAS prints them: "DATE9."
    std::vector<TypeCode> m_typeCodes;
    std::vector<std::int32_t> m_lengths;  ///< bytes
    std::vector<std::int32_t> m_formatWidths;
    std::vector<std::int32_t> m_formatDecimals;
    CellVector m_cells;
    BitVector m_libraryFilterMask;
    BitVector m_matchedObservations;
    BitVector m_datasetFilterMask;
    BitVector m_visibleVariables;
    bool m_valuesWanted = true;
    TextPool m_textPool;
    SourceKind m_sourceKind = SourceKind::Sas;
    std::string m_fallbackName;
    std::vector<std::string> m_damageNotes;
    std::vector<FileAttribute> m_fileAttributes;
    std::vector<int> m_keyVariables;
};
