#include "samples/TableWriter.h"
#include "tests/support/RFiles.h"

#include <readstat.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace {

using namespace samples;
using Path = std::filesystem::path;

struct Target
{
    const char* name;
    WriteOptions options;
};

const Target targets[] = {
    {"5.xpt", {.release = 5}},
    {"8.xpt", {.release = 8}},
    {"64.sas7bdat", {}},
    {"32.sas7bdat", {.layout64 = false}},
    {"rows64.sas7bdat", {.compression = Compression::Rows}},
    {"rows32.sas7bdat", {.compression = Compression::Rows, .layout64 = false}},
    {"plain.sav", {}},
    {"rows.sav", {.compression = Compression::Rows}},
    {"zlib.sav", {.compression = Compression::Zlib}},
    {"111.dta", {.release = 111}},
    {"114.dta", {.release = 114}},
    {"115.dta", {.release = 115}},
    {"117.dta", {.release = 117}},
    {"118.dta", {.release = 118}},
    {"119.dta", {.release = 119}},
    {"lines.csv", {}},
    {"gzip.rds", {}},
    {"list.json", {}},
    {"lines.ndjson", {}},
    {"packed.dsjc", {}},
};

/// All kinds of columns, with gaps and with texts that repeat, stay empty or are not ASCII.
Table mixedTable(int rowCount)
{
    Table table{{"MIXED",
                 "All kinds of columns",
                 {textColumn("SEX", "Sex"), textColumn("NAME", "Name of the person", 12),
                  numberColumn("AGE", "Age", "", 3), numberColumn("ADT", "Date", "DATE", 9),
                  numberColumn("ADTM", "Date and time", "DATETIME", 20),
                  numberColumn("AVAL", "Größe", "", 8, 2), textColumn("NOTE", "Remark", 90)}},
                {}};
    for (int row = 0; row < rowCount; ++row) {
        const bool gap = row % 5 == 4;
        const auto number = [&](double value) { return gap ? missing : value; };
        table.rows.push_back({row % 2 == 0 ? "F" : "M", gap ? "" : "Müller " + std::to_string(row),
                              number(20 + row), number(23074 + row), number(1.9e9 * row),
                              number(row / 8.0 - 3),
                              std::string(static_cast<std::size_t>(row % 7 * 12), 'x')});
    }
    return table;
}

struct Deleter
{
    void operator()(readstat_writer_t* writer) const noexcept { readstat_writer_free(writer); }
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

/// What no table can hold: notes, labels of values, texts of any length and the oldest releases.
void writeLabelled(const Path& path, std::uint8_t release, readstat_compress_t compression)
{
    const bool isSpss = path.extension() == ".sav";
    const std::unique_ptr<std::FILE, Deleter> file(std::fopen(path.c_str(), "wb"));
    const std::unique_ptr<readstat_writer_t, Deleter> owner(readstat_writer_init());
    readstat_writer_t* const writer = owner.get();
    readstat_set_data_writer(writer, [](const void* bytes, std::size_t size, void* stream) {
        return static_cast<ssize_t>(std::fwrite(bytes, 1, size, static_cast<std::FILE*>(stream)));
    });
    readstat_writer_set_compression(writer, compression);
    readstat_writer_set_file_format_version(writer, release);
    auto* const code = readstat_add_variable(writer, "CODE", READSTAT_TYPE_DOUBLE, 0);
    auto* const text =
        readstat_add_variable(writer, "STORY", READSTAT_TYPE_STRING, isSpss ? 600 : 80);
    const bool hasReferences = !isSpss && release >= 117;
    auto* const link = hasReferences
        ? readstat_add_variable(writer, "LINK", READSTAT_TYPE_STRING_REF, 0)
        : nullptr;
    if (link != nullptr) {
        readstat_add_string_ref(writer, "a text that is stored once");
    }
    if (isSpss) {
        readstat_add_note(writer, "A note about the file");
        readstat_variable_add_missing_double_range(code, 90, 99);
        auto* const labels = readstat_add_label_set(writer, READSTAT_TYPE_DOUBLE, "codes");
        readstat_label_double_value(labels, 1, "The first code");
        readstat_variable_set_label_set(code, labels);
    }
    constexpr int rows = 6;
    auto result = isSpss ? readstat_begin_writing_sav(writer, file.get(), rows)
                         : readstat_begin_writing_dta(writer, file.get(), rows);
    for (int row = 0; row < rows && result == READSTAT_OK; ++row) {
        readstat_begin_row(writer);
        readstat_insert_double_value(writer, code, row);
        readstat_insert_string_value(writer, text, "once upon a time");
        if (link != nullptr) {
            readstat_insert_string_ref(writer, link, readstat_get_string_ref(writer, 0));
        }
        result = readstat_end_row(writer);
    }
    if (result != READSTAT_OK || readstat_end_writing(writer) != READSTAT_OK) {
        throw std::runtime_error(path.string() + ": cannot be written");
    }
}

void writeRSeeds(const Path& folder)
{
    const std::pair<const char*, const char*> files[] = {
        {"types.rds", rfiles::types},         {"alternative.rds", rfiles::alternative},
        {"workspace.rds", rfiles::workspace}, {"long.rds", rfiles::longIntegers},
        {"ascii.rds", rfiles::ascii},         {"little.rds", rfiles::littleEndian},
        {"matrix.rds", rfiles::matrixFirst},
    };
    for (const auto& [name, file] : files) {
        std::ofstream(folder / name, std::ios::binary) << rfiles::bytesOf(file);
    }
}

/// What the samples' writer never writes: odd quotes, ragged lines, other character sets.
void writeOddCsv(const Path& folder)
{
    using namespace std::string_literals;
    const std::pair<const char*, std::string> files[] = {
        {"odd.csv", "A;B;A\n\"x\"y;1\r\n\r\n;007\n\"p\nq\";\"\"\"\";3;4\nNA;.;x\""},
        {"utf16.csv", "\xFF\xFE"s + "A\0,\0B\0\n\0x\0,\0001\0\n\0"s},
        {"cp1252.csv", "A|B\r\xE9|1\r\x80\0|2e5\r"s},
    };
    for (const auto& [name, text] : files) {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
}

/// What the samples' writer never writes: version 1.0, other orders, rows as objects, odd values.
void writeOddJson(const Path& folder)
{
    const std::string columns =
        R"([{"OID":"IT.A","name":"A","label":"","type":"string","length":4},)"
        R"({"OID":"IT.N","name":"N","label":"","type":"decimal","displayFormat":"8.2"},)"
        R"({"OID":"IT.D","name":"D","label":"","type":"date","targetDataType":"integer"},)"
        R"({"OID":"IT.B","name":"B","label":"","type":"boolean","keySequence":1}])";
    const std::string rows = R"([["\u00e9\ud83d\ude00","1,234.50","2021-02-28",true],)"
                             R"({"B":null,"N":-1e400,"A":[1,{"x":2}]},["\ud800",NaN],[]])";
    std::ofstream(folder / "first.json") << R"({"rows":)" + rows + R"(,"columns":)" + columns + "}";
    std::ofstream(folder / "groups.json")
        << R"({"datasetJSONVersion":"1.0.0","clinicalData":{"studyOID":"S","itemGroupData":)"
           R"({"IG.A":{"records":4,"name":"A","label":"","items":)"
        << columns << R"(,"itemData":)" << rows << "}}}}";
    std::ofstream(folder / "objects.ndjson") << R"({"name":"A","records":2,"columns":)" << columns
                                             << "}\r\n\n{\"A\":\"x\"}\r\n[\"],[\",1]\n";
}

void writeSeeds(const Path& folder)
{
    writeRSeeds(folder);
    writeOddCsv(folder);
    writeOddJson(folder);
    for (const Target& target : targets) {
        writeTable(folder / (std::string("mixed-") + target.name), mixedTable(12), target.options);
        writeTable(folder / (std::string("empty-") + target.name), mixedTable(0), target.options);
    }
    Table longNames = mixedTable(2);
    longNames.columns[2].label = "A label that is longer than the forty letters of a name record";
    longNames.columns[2].format = "LONGFORMATNAME";
    writeTable(folder / "long.xpt", longNames, {.release = 8});
    for (const int release : {5, 8}) {
        writeTransport(folder / ("members-" + std::to_string(release) + ".xpt"),
                       std::vector<Table>{mixedTable(3), mixedTable(0), mixedTable(2)},
                       {.release = release});
    }
    writeLabelled(folder / "labels.sav", 2, READSTAT_COMPRESS_NONE);
    writeLabelled(folder / "labels-zlib.sav", 3, READSTAT_COMPRESS_BINARY);
    for (const std::uint8_t release : {104, 105, 108, 110, 113, 117, 118, 119}) {
        writeLabelled(folder / ("labels-" + std::to_string(release) + ".dta"), release,
                      READSTAT_COMPRESS_NONE);
    }
}

}  // namespace

int main(int argc, char* argv[])
{
    try {
        writeSeeds(argc == 2 ? argv[1] : ".");
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
