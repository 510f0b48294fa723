#pragma once

#include "samples/FormatMapping.h"
#include "samples/Table.h"
#include "samples/WriteOptions.h"

#include <readstat.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace samples {

/// Writes a table row by row, its cells from left to right, into a file of the kind that the suffix
/// names. ReadStat keeps row-compressed SAS7BDAT data in memory until the end; all else goes
/// straight to the file.
///
/// The same calls give the same bytes whatever the clock and the time zone. Every failure is a
/// std::runtime_error that names the file; a file that is not finished is removed.
class RowWriter
{
public:
    RowWriter(std::filesystem::path path, TableShape shape, long rowCount,
              const WriteOptions& options = {});
    ~RowWriter();
    RowWriter(const RowWriter&) = delete;
    RowWriter& operator=(const RowWriter&) = delete;

    void beginRow();
    void addText(std::string_view text);
    void addNumber(double value);  ///< as SAS counts it; NaN is missing
    void endRow();

    /// Completes the file. Fails when fewer rows than announced were written.
    void finish();

private:
    struct Deleter
    {
        void operator()(readstat_writer_t* writer) const noexcept { readstat_writer_free(writer); }
        void operator()(std::FILE* file) const noexcept { std::fclose(file); }
    };

    [[noreturn]] void fail(const std::string& what) const;
    void check(readstat_error_t error) const;
    void openFile();
    void setProperties();
    void addVariables();
    void begin();
    void checkNames() const;
    void patchFile() const;
    [[nodiscard]] const std::string& encoded(std::string_view text);
    [[nodiscard]] const readstat_variable_t* nextVariable();

    std::filesystem::path m_path;
    TableShape m_shape;
    long m_rowCount;
    WriteOptions m_options;
    FileKind m_kind;
    std::vector<NumberMapping> m_mappings;
    std::vector<readstat_variable_t*> m_variables;  // owned by the writer
    std::size_t m_column = 0;
    std::string m_text;
    bool m_isFinished = false;
    std::unique_ptr<std::FILE, Deleter> m_file;
    std::unique_ptr<readstat_writer_t, Deleter> m_writer;
};

}  // namespace samples
