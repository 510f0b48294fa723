#pragma once

#include "data/cells/TextDecoder.h"
#include "data/readers/FileReader.h"
#include "data/readers/ParserInput.h"
#include "data/StatDataset.h"

#include <readstat.h>

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// What the readers of SAS, SPSS and Stata files share: one loading procedure around the format
/// library's parser, and the cells that its callbacks fill. The library hands texts over as they
/// stand in the file; each distinct one is converted to UTF-8 once.
class ReadStatDoc : public StatDataset
{
public:
    /// Reads the file. Without wanted values only the header and the variables.
    /// @return the library's error code, 0 for success; loadError() then says what is wrong. After
    /// a
    ///         failure the dataset keeps whatever had been filled.
    [[nodiscard]] int load(const QString& path);

    /// Why the last load failed, as a sentence that names the file; empty after a success.
    [[nodiscard]] const std::string& loadError() const { return m_loadError; }

    /// As the library reports them (readstat_compress_t, readstat_endian_t).
    [[nodiscard]] std::int32_t compression() const { return m_compression; }
    [[nodiscard]] std::int32_t byteOrder() const { return m_byteOrder; }

protected:
    /// Reads what the library leaves out of the file, and sets up what the library is shown of it.
    /// A reason that is returned ends the load.
    virtual std::string prepare(const FileReader& file, ParserInput& input) = 0;
    virtual readstat_error_t parse(readstat_parser_t* parser, const char* path) = 0;
    /// Copies the metadata into the header and sizes the dataset; 0 to carry on.
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
    /// Sets the counts, and sizes the cells when values are wanted. Refuses counts below zero,
    /// beyond 32 bits, or beyond what the file can hold.
    int resizeDataset(std::int64_t rows, std::int64_t variables, std::int64_t mostRows);
    /// Makes room for that many rows at first; more may come, and those that do are counted.
    void reserveRows(int rows);
    /// For prepare(): the file does not tell how many rows it has, so even without wanted values
    /// the whole of it is read to count them.
    void setRowCountUnknown() { m_rowCountIsUnknown = true; }
    [[nodiscard]] bool rowCountIsUnknown() const { return m_rowCountIsUnknown; }
    [[nodiscard]] std::int64_t fileSize() const { return m_fileSize; }
    /// Copies the fields that all kinds of files have.
    void copyCommonMetadata(const readstat_metadata_t& metadata);

    void setDecoder(TextDecoder decoder) { m_decoder = std::move(decoder); }
    [[nodiscard]] std::string decoded(const char* text) const;
    /// Rows of the file, ascending, that are no observations.
    void setSkippedRows(std::vector<std::int64_t> rows) { m_skippedRows = std::move(rows); }
    /// The record of a text that the file holds in its own encoding.
    PooledText* pooled(std::string_view raw);
    void setCell(int row, int column, CellValue value);
    /// Makes a cell show that text of the file.
    void setText(int row, int column, std::string_view raw);

private:
    static int onMetadata(readstat_metadata_t* metadata, void* context) noexcept;
    static int onVariable(int index, readstat_variable_t* variable, const char*,
                          void* context) noexcept;
    static int onValue(int row, readstat_variable_t* variable, readstat_value_t value,
                       void* context) noexcept;

    readstat_error_t runParser(const std::string& path, ParserInput& input);
    int finish(const QString& path, readstat_error_t code);
    void acceptVariable(int index, const readstat_variable_t& variable);
    int acceptValue(int row, const readstat_variable_t& variable, const readstat_value_t& value);
    [[nodiscard]] PooledText*& recentText(std::size_t column, std::string_view raw);
    bool isSkipped(int& row);
    void growTo(std::size_t cells);
    void settleCells();
    void acceptText(std::size_t cell, std::size_t column, const char* text);
    void resolveWaitingTexts();
    PooledText* convertedText(std::string_view raw);

    std::int32_t m_compression = 0;
    std::int32_t m_byteOrder = 0;
    std::string m_loadError;

    // Only in use while a load runs.
    std::int64_t m_fileSize = 0;  ///< bytes
    std::string m_refusal;
    TextDecoder m_decoder;
    std::vector<std::int64_t> m_skippedRows;
    std::size_t m_skipped = 0;
    bool m_rowCountIsUnknown = false;
    bool m_rowsAreCounted = false;  ///< the rows that come make the observation count
    bool m_variablesAreDone = false;
    int m_rowsSeen = 0;
    std::size_t m_valuesInOrder = 0;  ///< cells filled before the first gap
    /// Of each column the texts seen lately, by a few of their letters: most columns hold few
    /// texts.
    std::vector<PooledText*> m_recentTexts;
    /// A text cell of the current row that waits for its look-up.
    struct WaitingText
    {
        std::size_t cell;
        std::size_t column;
        std::size_t start;  ///< of its bytes in m_waitingBytes
        std::size_t size;
        std::uint64_t hash;
    };
    std::vector<WaitingText> m_waitingTexts;
    std::string m_waitingBytes;
    std::unordered_map<std::string, PooledText*> m_converted;  ///< by the bytes of the file
};
