#include "data/readers/DatasetFile.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

namespace {

struct FileCase
{
    const char* name;
    const char* file;
    samples::WriteOptions options;
    SourceKind kind;
    const char* missing;  ///< what a missing number shows
    const char* date;  ///< what day 0 shows
    const char* number;  ///< what 2.5 shows
};

std::ostream& operator<<(std::ostream& out, const FileCase& one)
{
    return out << one.name;
}

samples::WriteOptions release(int number)
{
    samples::WriteOptions options;
    options.release = number;
    return options;
}

samples::WriteOptions compressed(samples::Compression compression, bool layout64 = true)
{
    samples::WriteOptions options;
    options.compression = compression;
    options.layout64 = layout64;
    return options;
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

class Readers : public testing::TestWithParam<FileCase>
{
protected:
    [[nodiscard]] QString write(const samples::Table& table) const
    {
        const auto path = m_folder.file(GetParam().file);
        samples::writeTable(path, table, GetParam().options);
        return QString::fromStdString(path.string());
    }
    TemporaryFolder m_folder;
};

TEST_P(Readers, readEveryCell)
{
    const Result<OpenedDataset> opened = openDataset(write(visits()));
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    EXPECT_EQ(dataset.sourceKind(), GetParam().kind);
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

    EXPECT_EQ(dataset.cellText(0, 1), GetParam().number);
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
    const Result<OpenedDataset> opened = openDataset(write(visits()), {.metadataOnly = true});
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    EXPECT_EQ(dataset.observationCount(), 3);
    EXPECT_EQ(dataset.names().back(), "VSDT");
    EXPECT_EQ(dataset.labels().back(), "Date");
    EXPECT_FALSE(dataset.formats().back().empty());
    EXPECT_EQ(dataset.cellCount(), 0U);
    EXPECT_EQ(dataset.libraryFilterMask().size(), 0U);
    EXPECT_EQ(dataset.visibleVariables().count(), 3U);
}

TEST_P(Readers, readFilesWithoutObservations)
{
    samples::Table table = visits();
    table.rows.clear();
    const Result<OpenedDataset> opened = openDataset(write(table));
    ASSERT_TRUE(opened.ok()) << opened.error();
    EXPECT_EQ(opened.value().dataset->observationCount(), 0);
    EXPECT_EQ(opened.value().dataset->variableCount(), 3);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, Readers,
    testing::Values(
        FileCase{"transport5", "vs.xpt", release(5), SourceKind::Sas, "nan", "01Jan1960", "2.50"},
        FileCase{"transport8", "vs.xpt", release(8), SourceKind::Sas, "nan", "01Jan1960", "2.50"},
        FileCase{"sas64", "vs.sas7bdat", {}, SourceKind::Sas, "nan", "01Jan1960", "2.50"},
        FileCase{"sas32", "VS.SAS7BDAT", compressed(samples::Compression::None, false),
                 SourceKind::Sas, "nan", "01Jan1960", "2.50"},
        FileCase{"sasCompressed", "vs.sas7bdat", compressed(samples::Compression::Rows),
                 SourceKind::Sas, "nan", "01Jan1960", "2.50"},
        FileCase{"spss", "vs.sav", {}, SourceKind::Spss, ".", "01-JAN-1960", "2.50"},
        FileCase{"spssRows", "vs.sav", compressed(samples::Compression::Rows), SourceKind::Spss,
                 ".", "01-JAN-1960", "2.50"},
        FileCase{"spssZlib", "vs.sav", compressed(samples::Compression::Zlib), SourceKind::Spss,
                 ".", "01-JAN-1960", "2.50"},
        FileCase{"stata111", "vs.dta", release(111), SourceKind::Stata, ".", "01jan1960", "2.50"},
        FileCase{"stata114", "vs.dta", release(114), SourceKind::Stata, ".", "01jan1960", "2.50"},
        FileCase{"stata117", "vs.dta", release(117), SourceKind::Stata, ".", "01jan1960", "2.50"},
        FileCase{"stata118", "vs.dta", release(118), SourceKind::Stata, ".", "01jan1960", "2.50"},
        FileCase{"stata119", "vs.dta", release(119), SourceKind::Stata, ".", "01jan1960", "2.50"}),
    [](const auto& tested) { return tested.param.name; });

TEST(Readers, openAFileWhoseNameIsNoText)
{
    const TemporaryFolder folder;
    const std::string path = folder.path().string() + "/m\xFCnch.xpt";
    samples::writeTable(path, visits());
    EXPECT_TRUE(openDataset(QString::fromStdString(folder.path().string()) + QStringLiteral("/m")
                            + QChar(0xDCFC) + QStringLiteral("nch.xpt"))
                    .ok());
}

TEST(Readers, countTheCasesOfAnSpssFileThatDoesNotTell)
{
    const TemporaryFolder folder;
    for (const samples::Compression compression :
         {samples::Compression::None, samples::Compression::Rows}) {
        const std::string path = folder.file("unknown.sav").string();
        samples::writeTable(path, visits(), compressed(compression));
        std::string bytes = bytesOf(path);
        bytes.replace(80, 4, "\xFF\xFF\xFF\xFF");
        std::ofstream(path, std::ios::binary) << bytes;

        const Result<OpenedDataset> whole = openDataset(QString::fromStdString(path));
        ASSERT_TRUE(whole.ok()) << whole.error();
        EXPECT_EQ(whole.value().dataset->observationCount(), 3);
        EXPECT_EQ(whole.value().dataset->cellCount(), 9U);
        EXPECT_EQ(whole.value().dataset->cellText(2, 0), "Zürich");
        const Result<OpenedDataset> described =
            openDataset(QString::fromStdString(path), {.metadataOnly = true});
        ASSERT_TRUE(described.ok()) << described.error();
        EXPECT_EQ(described.value().dataset->observationCount(), 3);
        EXPECT_EQ(described.value().dataset->cellCount(), 0U);
    }
}

}  // namespace
