#include "tests/fuzz/LabelledFile.h"

#include <readstat.h>

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

namespace fuzz {

namespace {

struct Deleter
{
    void operator()(readstat_writer_t* writer) const noexcept { readstat_writer_free(writer); }
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

ssize_t writeBytes(const void* bytes, std::size_t size, void* file) noexcept
{
    return static_cast<ssize_t>(std::fwrite(bytes, 1, size, static_cast<std::FILE*>(file)));
}

struct Target
{
    const char* name;
    int release;
    readstat_compress_t compression;
};

constexpr Target targets[] = {
    {"labels.sav", 2, READSTAT_COMPRESS_NONE},
    {"labels-rows.sav", 2, READSTAT_COMPRESS_ROWS},
    {"labels-zlib.sav", 3, READSTAT_COMPRESS_BINARY},
    {"labels-104.dta", 104, READSTAT_COMPRESS_NONE},
    {"labels-105.dta", 105, READSTAT_COMPRESS_NONE},
    {"labels-108.dta", 108, READSTAT_COMPRESS_NONE},
    {"labels-110.dta", 110, READSTAT_COMPRESS_NONE},
    {"labels-113.dta", 113, READSTAT_COMPRESS_NONE},
    {"labels-117.dta", 117, READSTAT_COMPRESS_NONE},
    {"labels-118.dta", 118, READSTAT_COMPRESS_NONE},
    {"labels-119.dta", 119, READSTAT_COMPRESS_NONE},
};

class LabelledFile
{
public:
    LabelledFile(std::filesystem::path path, const Target& target)
        : m_path(std::move(path))
        , m_target(target)
        , m_isSpss(m_path.extension() == ".sav")
        , m_file(std::fopen(m_path.c_str(), "wb"))
        , m_writer(readstat_writer_init())
    {
        if (!m_file) {
            throw std::runtime_error(m_path.string() + ": cannot be written");
        }
    }
    void write()
    {
        describe();
        addVariables();
        begin();
        for (int row = 0; row < rowCount; ++row) {
            writeRow(row);
        }
        check(readstat_end_writing(writer()));
    }

private:
    static constexpr int rowCount = 12;

    [[nodiscard]] readstat_writer_t* writer() const { return m_writer.get(); }
    void check(readstat_error_t error) const
    {
        if (error != READSTAT_OK) {
            throw std::runtime_error(m_path.string() + ": " + readstat_error_message(error));
        }
    }
    readstat_variable_t* add(const char* name, readstat_type_t type, std::size_t width = 0)
    {
        return readstat_add_variable(writer(), name, type, width);
    }
    void describe();
    void addVariables();
    void begin();
    void writeRow(int row);

    std::filesystem::path m_path;
    Target m_target;
    bool m_isSpss;
    std::unique_ptr<std::FILE, Deleter> m_file;
    std::unique_ptr<readstat_writer_t, Deleter> m_writer;
    readstat_variable_t* m_code = nullptr;  // owned by the writer, as all variables are
    readstat_variable_t* m_byte = nullptr;
    readstat_variable_t* m_number = nullptr;
    readstat_variable_t* m_text = nullptr;
    readstat_variable_t* m_longText = nullptr;  // SPSS only
    readstat_variable_t* m_reference = nullptr;  // Stata from 117 on
};

void LabelledFile::describe()
{
    check(readstat_set_data_writer(writer(), writeBytes));
    check(readstat_writer_set_file_label(writer(), "Labels"));
    check(readstat_writer_set_file_timestamp(writer(), 1736942400));
    check(readstat_writer_set_compression(writer(), m_target.compression));
    check(readstat_writer_set_file_format_version(writer(),
                                                  static_cast<std::uint8_t>(m_target.release)));
    if (m_isSpss || m_target.release >= 105) {
        readstat_add_note(writer(), "A note about the file");
        readstat_add_note(writer(), "Another one");
    }
}

void LabelledFile::addVariables()
{
    m_code = add("CODE", m_isSpss ? READSTAT_TYPE_DOUBLE : READSTAT_TYPE_INT32);
    m_byte = add("TINY", READSTAT_TYPE_INT8);
    m_number = add("VALUE", m_isSpss ? READSTAT_TYPE_DOUBLE : READSTAT_TYPE_FLOAT);
    m_text = add("WORD", READSTAT_TYPE_STRING, 20);
    if (m_isSpss) {
        m_longText = add("STORY", READSTAT_TYPE_STRING, 600);
        auto* const words = readstat_add_label_set(writer(), READSTAT_TYPE_STRING, "words");
        readstat_label_string_value(words, "word 1", "The first word");
        readstat_variable_set_label_set(m_text, words);
        check(readstat_variable_add_missing_double_range(m_number, 90, 99));
        check(readstat_variable_add_missing_double_value(m_number, 7));
        check(readstat_variable_add_missing_string_value(m_text, "none"));
        check(readstat_writer_set_fweight_variable(writer(), m_number));
    } else if (m_target.release >= 117) {
        m_reference = add("LINK", READSTAT_TYPE_STRING_REF);
        readstat_add_string_ref(writer(), "a text that is stored once");
        readstat_add_string_ref(writer(), "another");
    }
    auto* const codes = readstat_add_label_set(
        writer(), m_isSpss ? READSTAT_TYPE_DOUBLE : READSTAT_TYPE_INT32, "codes");
    for (int code = 0; code < 4; ++code) {
        const std::string label = "Code " + std::to_string(code);
        if (m_isSpss) {
            readstat_label_double_value(codes, code, label.c_str());
        } else {
            readstat_label_int32_value(codes, code, label.c_str());
        }
    }
    readstat_variable_set_label_set(m_code, codes);
    readstat_variable_set_label(m_code, "Coded");
}

void LabelledFile::begin()
{
    check(m_isSpss ? readstat_begin_writing_sav(writer(), m_file.get(), rowCount)
                   : readstat_begin_writing_dta(writer(), m_file.get(), rowCount));
}

void LabelledFile::writeRow(int row)
{
    check(readstat_begin_row(writer()));
    if (m_isSpss) {
        check(readstat_insert_double_value(writer(), m_code, row % 5));
    } else {
        check(readstat_insert_int32_value(writer(), m_code, row % 5));
    }
    check(readstat_insert_int8_value(writer(), m_byte, static_cast<std::int8_t>(row - 6)));
    if (m_isSpss) {
        check(readstat_insert_double_value(writer(), m_number, row * 9.0));
    } else if (row == 3) {
        check(readstat_insert_missing_value(writer(), m_number));
    } else {
        check(readstat_insert_float_value(writer(), m_number, static_cast<float>(row)));
    }
    const std::string text = "word " + std::to_string(row);
    check(readstat_insert_string_value(writer(), m_text, text.c_str()));
    if (m_longText != nullptr) {
        const std::string story(static_cast<std::size_t>(row) * 50, 'a');
        check(readstat_insert_string_value(writer(), m_longText, story.c_str()));
    }
    if (m_reference != nullptr) {
        check(readstat_insert_string_ref(writer(), m_reference,
                                         readstat_get_string_ref(writer(), row % 2)));
    }
    check(readstat_end_row(writer()));
}

}  // namespace

std::vector<std::filesystem::path> writeLabelledFiles(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& target : targets) {
        paths.push_back(folder / target.name);
        LabelledFile(paths.back(), target).write();
    }
    return paths;
}

}  // namespace fuzz
