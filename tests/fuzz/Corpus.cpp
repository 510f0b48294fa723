#include "tests/fuzz/Corpus.h"

#include "samples/TableWriter.h"
#include "tests/fuzz/LabelledFile.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

namespace fuzz {

namespace {

using namespace samples;

constexpr std::uintmax_t largestSeed = 128 * 1024;

constexpr double someDay = 23074;
constexpr double someSecond = 1993627800;

/// All kinds of columns, with texts that repeat, stay empty or are not ASCII.
Table mixedTable(int rowCount)
{
    Table table{{"MIXED",
                 "All kinds of columns",
                 {textColumn("SEX", "Sex"), textColumn("NAME", "Name of the person", 12),
                  numberColumn("AGE", "Age", "", 3), numberColumn("ADT", "Date", "DATE", 9),
                  numberColumn("ADTM", "Date and time", "DATETIME", 20),
                  numberColumn("ATM", "Time", "TIME", 8), numberColumn("AVAL", "Größe", "", 8, 2),
                  textColumn("NOTE", "What there is to say", 120)}},
                {}};
    for (int row = 0; row < rowCount; ++row) {
        const bool gap = row % 5 == 4;
        const auto number = [&](double value) { return gap ? missing : value; };
        table.rows.push_back({row % 2 == 0 ? "F" : "M", gap ? "" : "Müller " + std::to_string(row),
                              number(20 + row), number(someDay + row), number(someSecond * row),
                              number(100 * row), number(row / 8.0 - 3),
                              std::string(static_cast<std::size_t>(row % 7 * 16), 'x')});
    }
    return table;
}

/// More columns than rows, so that most of the file is description.
Table wideTable()
{
    Table table{{"WIDE", "Many columns", {}}, {}};
    constexpr int columns = 90;
    Row row;
    for (int column = 0; column < columns; ++column) {
        const std::string name = "V" + std::to_string(column);
        const bool character = column % 3 == 0;
        table.columns.push_back(character ? textColumn(name, "Text " + name, 1 + column % 40)
                                          : numberColumn(name, "Number " + name, "BEST", 12));
        row.push_back(character ? Cell("t") : Cell(column * 1.5));
    }
    table.rows.assign(3, row);
    return table;
}

Table longTable()
{
    Table table{
        {"LONG", "Many rows", {textColumn("ID", "Identifier", 8), numberColumn("N", "Number")}},
        {}};
    constexpr int rows = 700;
    for (int row = 0; row < rows; ++row) {
        table.rows.push_back({"ID-" + std::to_string(row), static_cast<double>(row)});
    }
    return table;
}

struct Target
{
    const char* name;
    const char* suffix;
    WriteOptions options;
};

const Target targets[] = {
    {"v5", ".xpt", {.release = 5}},
    {"v8", ".xpt", {.release = 8}},
    {"plain64", ".sas7bdat", {}},
    {"plain32", ".sas7bdat", {.layout64 = false}},
    {"rows64", ".sas7bdat", {.compression = Compression::Rows}},
    {"rows32", ".sas7bdat", {.compression = Compression::Rows, .layout64 = false}},
    {"plain", ".sav", {}},
    {"rows", ".sav", {.compression = Compression::Rows}},
    {"zlib", ".sav", {.compression = Compression::Zlib}},
    {"s111", ".dta", {.release = 111}},
    {"s114", ".dta", {.release = 114}},
    {"s115", ".dta", {.release = 115}},
    {"s117", ".dta", {.release = 117}},
    {"s118", ".dta", {.release = 118}},
    {"s119", ".dta", {.release = 119}},
};

std::string lowerCase(std::string text)
{
    std::ranges::transform(text, text.begin(), [](unsigned char letter) {
        return static_cast<char>(std::tolower(letter));
    });
    return text;
}

void add(Corpus& corpus, const std::filesystem::path& path)
{
    corpus.push_back(
        {path.filename().string(), lowerCase(path.extension().string()), bytesOfFile(path)});
}

bool isDataFile(const std::filesystem::path& path)
{
    static const std::vector<std::string> suffixes{".sas7bdat", ".xpt", ".sav", ".dta"};
    return std::ranges::count(suffixes, lowerCase(path.extension().string())) > 0;
}

}  // namespace

Corpus makeCorpus(const std::filesystem::path& folder)
{
    constexpr int manyRows = 60;
    const std::vector<Table> tables{mixedTable(manyRows), wideTable(), longTable(), mixedTable(0)};
    Corpus corpus;
    for (const auto& target : targets) {
        for (std::size_t i = 0; i < tables.size(); ++i) {
            const std::string name =
                lowerCase(tables[i].name) + std::to_string(i) + "-" + target.name + target.suffix;
            writeTable(folder / name, tables[i], target.options);
            add(corpus, folder / name);
        }
    }
    for (const int release : {5, 8}) {
        const auto path = folder / ("members-v" + std::to_string(release) + ".xpt");
        writeTransport(path, std::vector<Table>{mixedTable(3), wideTable(), mixedTable(2)},
                       {.release = release});
        add(corpus, path);
    }
    for (const auto& path : writeLabelledFiles(folder)) {
        add(corpus, path);
    }
    return corpus;
}

void addFolder(Corpus& corpus, const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && isDataFile(entry.path()) && entry.file_size() > 0
            && entry.file_size() <= largestSeed) {
            paths.push_back(entry.path());
        }
    }
    std::ranges::sort(paths);
    for (const auto& path : paths) {
        add(corpus, path);
    }
}

void keepOnly(Corpus& corpus, std::string_view suffix)
{
    std::erase_if(corpus, [&](const SeedFile& file) { return file.suffix != suffix; });
}

std::string bytesOfFile(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace fuzz
