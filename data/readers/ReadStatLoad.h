#pragma once

#include "data/cells/CellLoader.h"
#include "data/readers/FileDataset.h"
#include "data/readers/FileReader.h"
#include "data/readers/ParserInput.h"
#include "data/readers/SkippedRows.h"

#include <readstat.h>

#include <QString>

#include <cstdint>
#include <string>

/// One load of a SAS, SPSS or Stata file: the format library's parser with its callbacks, and all
/// that is needed only until the dataset is open. Each kind of file has a load of its own, which
/// fills in what the library leaves out. The library hands texts over as they stand in the file.
class ReadStatLoad
{
public:
    /// The dataset outlives the load.
    explicit ReadStatLoad(FileDataset& dataset);
    virtual ~ReadStatLoad() = default;
    ReadStatLoad(const ReadStatLoad&) = delete;
    ReadStatLoad& operator=(const ReadStatLoad&) = delete;

    /// Reads the file; see FileDataset::load().
    [[nodiscard]] int run(const QString& path);

protected:
    /// Reads what the library leaves out of the file, and sets up what the library is shown of it.
    /// A reason that is returned ends the load.
    virtual std::string prepare(const FileReader& file, ParserInput& input) = 0;
    virtual readstat_error_t parse(readstat_parser_t* parser, const char* path) = 0;
    /// Copies the metadata into the header and begins the cells; 0 to carry on.
    virtual int acceptMetadata(const readstat_metadata_t& metadata) = 0;
    /// Adds to a variable what the file's own records say of it.
    virtual void completeVariable(int) { }
    /// Runs after the parse, with the file still open; a reason that is returned fails the load.
    virtual std::string complete(const FileReader&) { return {}; }
    /// Whether this result of the parse is a success for this file.
    [[nodiscard]] virtual bool isSuccess(readstat_error_t code) const
    {
        return code == READSTAT_OK;
    }

    /// Ends the parse with this reason; for use in handlers.
    int refuse(std::string reason);
    /// Sets the counts and begins the cells. Refuses counts below zero, beyond 32 bits, or beyond
    /// what the file can hold.
    int beginRows(std::int64_t rows, std::int64_t variables, std::int64_t mostRows);
    /// The same for a file that does not tell how many rows it has. Even without wanted values the
    /// whole of it is read to count them; to be known before the parse.
    int beginUncountedRows(std::int64_t variables);
    void setRowCountUnknown() { m_rowCountIsUnknown = true; }
    [[nodiscard]] bool rowCountIsUnknown() const { return m_rowCountIsUnknown; }

    [[nodiscard]] std::int64_t fileSize() const { return m_fileSize; }
    /// Copies the fields that all kinds of files have.
    void copyCommonMetadata(const readstat_metadata_t& metadata);
    [[nodiscard]] std::string decoded(const char* text) const;
    /// Puts a text of the file into a cell, without blanks at its ends.
    void putText(int row, int column, std::string_view text);
    [[nodiscard]] CellLoader& cells() { return m_cells; }
    [[nodiscard]] SkippedRows& skippedRows() { return m_skippedRows; }

private:
    static int onMetadata(readstat_metadata_t* metadata, void* context) noexcept;
    static int onVariable(int index, readstat_variable_t* variable, const char*,
                          void* context) noexcept;
    static int onValue(int row, readstat_variable_t* variable, readstat_value_t value,
                       void* context) noexcept;

    readstat_error_t read(const QString& path);
    readstat_error_t runParser(const std::string& path, ParserInput& input);
    int finish(const QString& path, readstat_error_t code);
    bool resizeVariables(std::int64_t count);
    void acceptVariable(int index, const readstat_variable_t& variable);
    void acceptValue(int row, const readstat_variable_t& variable, const readstat_value_t& value);

    FileDataset& m_dataset;
    CellLoader m_cells;
    SkippedRows m_skippedRows;
    std::int64_t m_fileSize = 0;  ///< bytes
    std::string m_refusal;
    bool m_rowCountIsUnknown = false;
    bool m_variablesAreDone = false;
};
