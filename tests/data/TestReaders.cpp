#include "data/FilePath.h"
#include "data/readers/SavDoc.h"
#include "data/StoredValue.h"
#include "tests/data/ReaderTest.h"
#include "tests/support/LogCapture.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace {

using samples::Compression;

struct FileCase
{
    const char* name;
    const char* file;
    samples::WriteOptions options{};
    SourceKind kind = SourceKind::Sas;
    const char* missing = "nan";  ///< what a missing number shows
    const char* date = "01Jan1960";  ///< what day 0 shows
};

std::ostream& operator<<(std::ostream& out, const FileCase& one)
{
    return out << one.name;
}

constexpr double day2020 = 21914;  // 2019-12-31 since 1960

/// Three rows: texts with other than ASCII letters, repeated, blank and padded; numbers and dates.
samples::Table visits()
{
    samples::Table table;
    table.name = "VS";
    table.label = "Vital signs";
    samples::Column text = samples::textColumn("SITE", "Site of the visit", 12);
    table.columns = {text, samples::numberColumn("DOSE", "Dose (mg)", "F", 8, 2),
                     samples::numberColumn("VSDT", "Date", "DATE", 9)};
    table.rows = {{"Zürich", 2.5, 0.0},
                  {" Basel", samples::missing, samples::missing},
                  {"Zürich", -1.0, day2020}};
    return table;
}

samples::Table texts(const std::vector<std::string>& values)
{
    samples::Table table;
    table.columns = {samples::textColumn("TEXT", "Text", 12)};
    for (const std::string& value : values) {
        table.rows.push_back({value});
    }
    return table;
}

class Readers : public ReaderTest, public testing::WithParamInterface<FileCase>
{
protected:
    [[nodiscard]] std::unique_ptr<StatDataset> reread(const samples::Table& table,
                                                      const OpenOptions& options = {}) const
    {
        return read(GetParam().file, written(GetParam().file, table, GetParam().options), options);
    }
};

TEST_P(Readers, tellHowFarTheyAre)
{
    samples::Table table = visits();
    for (int row = 3; row < 20'000; ++row) {
        table.rows.push_back({"Site " + std::to_string(row), double(row), double(row)});
    }
    std::vector<int> percents;
    (void)reread(table, {.progress = [&](int percent) { percents.push_back(percent); }});
    EXPECT_GE(percents.size(), 3U);
    EXPECT_TRUE(std::ranges::all_of(percents, [](int it) { return it >= 0 && it <= 100; }));
    ASSERT_FALSE(percents.empty());
    EXPECT_GE(percents.back(), 90);
}

TEST_P(Readers, readEveryCell)
{
    const auto opened = reread(visits());
    const StatDataset& dataset = *opened;
    EXPECT_EQ(dataset.sourceKind(), GetParam().kind);
    const bool isNamed = dataset.sourceKind() == SourceKind::Sas;
    EXPECT_EQ(dataset.datasetName(), isNamed ? "VS" : "vs") << "its own name, or its file's";
    ASSERT_EQ(dataset.observationCount(), 3);
    EXPECT_EQ(dataset.names(), (std::vector<std::string>{"SITE", "DOSE", "VSDT"}));
    EXPECT_EQ(dataset.labels(),
              (std::vector<std::string>{"Site of the visit", "Dose (mg)", "Date"}));
    EXPECT_TRUE(dataset.isCharacter(0));
    EXPECT_TRUE(dataset.isNumeric(1));

    EXPECT_EQ(dataset.stringValue(0, 0), "Zürich");
    EXPECT_EQ(dataset.stringValue(1, 0), "Basel") << "trimmed at both ends";
    EXPECT_EQ(std::get<0>(dataset.cell(0, 0)), std::get<0>(dataset.cell(2, 0))) << "one record";
    EXPECT_EQ(std::get<0>(dataset.cell(0, 0))->references(), 2U);
    EXPECT_EQ(dataset.numericValue(2, 1), -1.0);
    EXPECT_TRUE(std::isnan(dataset.numericValue(1, 1)));

    EXPECT_EQ(dataset.formatDecimals()[1], 2);
    EXPECT_EQ(dataset.cellText(0, 1), "2.50");
    EXPECT_EQ(dataset.cellText(0, 2), GetParam().date);
    EXPECT_EQ(dataset.cellText(1, 1), GetParam().missing);
    EXPECT_EQ(dataset.cellText(1, 2), GetParam().missing);
    EXPECT_EQ(dataset.libraryFilterMask().count(), 3U);
    EXPECT_EQ(dataset.matchedObservations().count(), 0U);
    EXPECT_EQ(dataset.matchedObservations().size(), 3U);
    EXPECT_EQ(dataset.datasetFilterMask().count(), 3U);
    EXPECT_EQ(dataset.visibleVariables().count(), 3U);
}

TEST_P(Readers, describeWithoutReadingCells)
{
    const auto opened = reread(visits(), {.metadataOnly = true});
    const StatDataset& dataset = *opened;
    EXPECT_EQ(dataset.observationCount(), 3);
    EXPECT_EQ(dataset.names().back(), "VSDT");
    EXPECT_EQ(dataset.labels().back(), "Date");
    EXPECT_FALSE(dataset.formats().back().empty());
    EXPECT_EQ(dataset.cellCount(), 0U);
    EXPECT_EQ(dataset.cellText(0, 0), "");
    EXPECT_EQ(dataset.libraryFilterMask().size(), 0U);
    EXPECT_EQ(dataset.visibleVariables().count(), 3U);
}

TEST_P(Readers, readFilesWithoutObservations)
{
    samples::Table table = visits();
    table.rows.clear();
    const auto dataset = reread(table);
    EXPECT_EQ(dataset->observationCount(), 0);
    EXPECT_EQ(dataset->variableCount(), 3);
}

const samples::WriteOptions rows{.compression = Compression::Rows};
const samples::WriteOptions zlib{.compression = Compression::Zlib};
const FileCase kinds[] = {
    {"transport5", "vs.xpt", {.release = 5}},
    {"transport8", "vs.xpt", {.release = 8}},
    {"sas64", "vs.sas7bdat", {}},
    {"sas32", "VS.SAS7BDAT", {.layout64 = false}},
    {"sasCompressed", "vs.sas7bdat", rows},
    {"spss", "vs.sav", {}, SourceKind::Spss, ".", "01-JAN-1960"},
    {"spssRows", "vs.sav", rows, SourceKind::Spss, ".", "01-JAN-1960"},
    {"spssZlib", "vs.sav", zlib, SourceKind::Spss, ".", "01-JAN-1960"},
    {"stata111", "vs.dta", {.release = 111}, SourceKind::Stata, ".", "01jan1960"},
    {"stata114", "vs.dta", {.release = 114}, SourceKind::Stata, ".", "01jan1960"},
    {"stata117", "vs.dta", {.release = 117}, SourceKind::Stata, ".", "01jan1960"},
    {"stata118", "vs.dta", {.release = 118}, SourceKind::Stata, ".", "01jan1960"},
    {"stata119", "vs.dta", {.release = 119}, SourceKind::Stata, ".", "01jan1960"},
};

INSTANTIATE_TEST_SUITE_P(Kinds, Readers, testing::ValuesIn(kinds),
                         [](const auto& tested) { return tested.param.name; });

class ReaderFiles : public ReaderTest
{ };

TEST_F(ReaderFiles, openUnderANameThatIsNoText)
{
    samples::writeTable(m_folder.path().string() + "/m\xFCnch.xpt", visits());
    const QString file = path("m") + QChar(0xDCFC) + QStringLiteral("nch.xpt");
    EXPECT_TRUE(openDataset(file).ok());
    EXPECT_EQ(filepath::stateOf(file).size % 80, 0);
    EXPECT_TRUE(filepath::stateOf(file).exists && filepath::stateOf(file).lastModified.isValid());
    EXPECT_FALSE(filepath::stateOf(file + 'x').exists);
}

TEST_F(ReaderFiles, tellHowTheyArePackedAndInWhichOrder)
{
    for (const auto& [file, compression, expected] :
         {std::tuple("a.sas7bdat", Compression::None, FileCompression::None),
          std::tuple("a.sas7bdat", Compression::Rows, FileCompression::Rows),
          std::tuple("a.sav", Compression::Zlib, FileCompression::Binary)}) {
        const auto dataset = read(file, written(file, visits(), {.compression = compression}));
        EXPECT_EQ(dataset->header().compression, expected);
        EXPECT_EQ(dataset->header().byteOrder, ByteOrder::Little);
    }
}

TEST_F(ReaderFiles, haveNoTwoVariablesOfOneName)
{
    samples::Table table;
    for (const char* const name : {"AGEN", "AGE1", "AGE2", "agen", "AGE3", "AGEN_2"}) {
        table.columns.push_back(samples::numberColumn(name, "x"));
    }
    for (const char* const file : {"a.sas7bdat", "a.xpt", "a.dta"}) {
        SCOPED_TRACE(file);
        std::string bytes = written(file, table, {.release = file[2] == 'd' ? 114 : 0});
        for (const char* const name : {"AGE1", "AGE3"}) {
            bytes.replace(bytes.find(name), 4, "AGEN");
        }
        LogCapture log;
        const auto dataset = read(file, bytes);
        EXPECT_EQ(dataset->names(),
                  (std::vector<std::string>{"AGEN", "AGEN_3", "AGE2", "agen", "AGEN_4", "AGEN_2"}));
        const std::string lines = log.take();
        EXPECT_NE(lines.find("variable 5 has the name of an earlier one and is called AGEN_4"),
                  std::string::npos)
            << lines;
    }
}

TEST_F(ReaderFiles, replaceWhatADatasetHeld)
{
    samples::Table other = texts({"Bern"});
    std::string odd = written("odd.sav", visits());
    put(odd, 72, 7, 4);
    SavDoc dataset;
    ASSERT_EQ(dataset.load(write("odd.sav", odd)), 0);
    ASSERT_EQ(dataset.damageNotes().size(), 1U);
    const std::string whole = written("other.sav", other);
    ASSERT_EQ(dataset.load(write("other.sav", whole)), 0);
    EXPECT_EQ(dataset.damageNotes().size(), 0U);
    EXPECT_EQ(dataset.cellCount(), 1U);
    EXPECT_EQ(dataset.cellText(0, 0), "Bern");
    EXPECT_EQ(dataset.textPool().size(), 1U);
    EXPECT_EQ(dataset.names(), std::vector<std::string>{"TEXT"});
    EXPECT_EQ(dataset.libraryFilterMask().size(), 1U);
    EXPECT_NE(dataset.load(write("cut.sav", odd.substr(0, 300))), 0);
    EXPECT_EQ(dataset.cellCount(), 0U);
    EXPECT_EQ(dataset.libraryFilterMask().size(), 0U);
    EXPECT_EQ(dataset.cellText(0, 0), "");
}

TEST_F(ReaderFiles, areCountedWhereAnSpssFileDoesNotTell)
{
    for (const Compression compression : {Compression::None, Compression::Rows}) {
        std::string bytes = written("unknown.sav", visits(), {.compression = compression});
        put(bytes, 80, 0xFFFFFFFF, 4);
        const auto whole = read("unknown.sav", bytes);
        EXPECT_EQ(whole->observationCount(), 3);
        EXPECT_EQ(whole->cellCount(), 9U);
        EXPECT_EQ(whole->cellText(2, 0), "Zürich");
        const auto described = read("unknown.sav", bytes, {.metadataOnly = true});
        EXPECT_EQ(described->observationCount(), 3);
        EXPECT_EQ(described->cellCount(), 0U);
        for (const std::size_t cut : {1, 8, 16}) {
            const auto opened = openDataset(write("cut.sav", bytes.substr(0, bytes.size() - cut)));
            EXPECT_TRUE(!opened.ok() && opened.error().ends_with("cut short within an observation"))
                << cut;
        }
    }
}

class SpecialMissing : public ReaderTest
{ };

TEST_F(SpecialMissing, keepsItsLetter)
{
    samples::Table table;
    table.name = "LB";
    table.columns = {samples::numberColumn("N", "N", "F", 8, 1)};
    table.rows = {{1.0 / 3}, {samples::missing}, {samples::missing}, {samples::missing}};
    // Where a cell holds the letter, and how it stands there.
    const auto check = [&](const char* name, std::size_t cell, std::size_t place, unsigned flip) {
        std::string bytes = written(name, table);
        bytes.at(cell + 8 + place) = static_cast<char>('A' ^ flip);
        bytes.at(cell + 16 + place) = static_cast<char>('_' ^ flip);
        const auto dataset = read(name, bytes);
        std::string texts;
        for (int row = 0; row < 4; ++row) {
            texts += storedvalue::text(*dataset, row, 0) + ' ';
        }
        EXPECT_EQ(texts, "0.3333333333333333 .A ._ . ") << name;
        EXPECT_EQ(dataset->cellText(1, 0), dataset->cellText(3, 0));
        EXPECT_EQ(dataset->writtenFormat(0), "F8.1");
    };
    check("lb.xpt", written("lb.xpt", table).find("@UUUUUU"), 0, 0);
    check("lb.sas7bdat", written("lb.sas7bdat", table).find("UUUUUU\xD5?"), 5, 0xFF);
}

}  // namespace
