#include "data/readers/DatasetFile.h"
#include "data/values/Texts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>

namespace {

using nlohmann::json;
namespace fs = std::filesystem;

/// Values that independent programs read from real files, beside those files.
class GoldenFiles : public testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        const char* folder = std::getenv("QUORLANE_TEST_DATA");
        if (folder == nullptr || *folder == '\0') {
            GTEST_SKIP() << "QUORLANE_TEST_DATA is not set";
        }
        m_folder = folder;
    }
    fs::path m_folder;
};

bool sameNumber(const json& expected, double number)
{
    if (expected.is_null()) {
        return std::isnan(number);
    }
    if (expected.is_string()) {
        return std::isinf(number) && (number < 0) == expected.get<std::string>().starts_with('-');
    }
    const double wanted = expected.get<double>();
    return number == wanted || std::abs(number - wanted) <= 1e-12 * std::abs(wanted);
}

bool sameText(const json& expected, const std::string& text)
{
    return texts::trimmed(expected.is_null() ? std::string() : expected.get<std::string>()) == text;
}

/// Empty where it is missing.
std::string textOf(const StatDataset& dataset, int observation, int column)
{
    std::string text = texts::trimmed(dataset.stringValue(observation, column));
    return text == dataset.missingText(column) ? std::string() : text;
}

/// Cells whose bytes are not valid in the file's own character set have no one right text.
std::set<std::pair<int, std::string>> undecodableCells(const json& golden)
{
    std::set<std::pair<int, std::string>> cells;
    for (const char* key : {"undecodable_cells", "non_utf8_cells"}) {
        for (const json& one : golden.value(key, json::array())) {
            cells.emplace(one.at(0).get<int>(), one.at(1).get<std::string>());
        }
    }
    return cells;
}

void compareRows(const StatDataset& dataset, const json& golden, const json& rows, int start)
{
    const auto skipped = undecodableCells(golden);
    const auto deleted = golden.value("deleted_rows", std::vector<int>());
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const int row = start + i;
        if (std::find(deleted.begin(), deleted.end(), row) != deleted.end()) {
            continue;
        }
        const auto before =
            std::count_if(deleted.begin(), deleted.end(), [&](int one) { return one < row; });
        const int observation = row - static_cast<int>(before);
        for (int column = 0; column < dataset.variableCount(); ++column) {
            const std::string& name = dataset.names()[static_cast<std::size_t>(column)];
            const json& expected =
                rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(column)];
            if (skipped.contains({row, name})) {
                continue;
            }
            const bool same = dataset.isNumeric(column)
                ? sameNumber(
                    expected,
                    dataset.missingMark(column).unified(dataset.numericValue(observation, column)))
                : sameText(expected, textOf(dataset, observation, column));
            EXPECT_TRUE(same) << golden["file"] << " row " << row << ' ' << name << ": want "
                              << expected;
        }
    }
}

void compareFormat(const StatDataset& dataset, std::size_t variable, const json& golden)
{
    if (dataset.sourceKind() == SourceKind::R) {
        return;  // classes take the place of formats
    }
    const std::string& format = dataset.formats()[variable];
    if (dataset.sourceKind() != SourceKind::Sas) {
        EXPECT_EQ(format, golden["format_attr"].get<std::string>());
        return;
    }
    EXPECT_EQ(format, golden["format_name"].get<std::string>());
    EXPECT_EQ(dataset.formatWidths()[variable], golden["format_width"].get<int>());
    EXPECT_EQ(dataset.formatDecimals()[variable], golden["format_decimals"].get<int>());
}

void compareVariables(const StatDataset& dataset, const json& golden)
{
    const bool hasLabels = golden.value("labels_confirmed", true);
    for (int column = 0; column < dataset.variableCount(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        const json& variable = golden["variables"][at];
        SCOPED_TRACE(variable["name"]);
        EXPECT_EQ(dataset.names()[at], variable["name"].get<std::string>());
        EXPECT_EQ(dataset.isNumeric(column), variable["type"] == "num");
        compareFormat(dataset, at, variable);
        if (hasLabels) {
            EXPECT_EQ(texts::trimmed(dataset.labels()[at]),
                      texts::trimmed(variable["label"].get<std::string>()));
        }
    }
}

void compare(const fs::path& folder, const json& golden)
{
    const std::string file = golden.at("file");
    SCOPED_TRACE(file);
    const auto opened = openDataset(QString::fromStdString((folder / file).string()));
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    const int rows = golden.value("n_rows_not_deleted", golden.at("n_rows").get<int>());
    ASSERT_EQ(dataset.observationCount(), rows);
    ASSERT_EQ(dataset.variableCount(), golden.at("n_cols").get<int>());
    if (golden.contains("file_label")) {
        EXPECT_TRUE(sameText(golden["file_label"], texts::trimmed(dataset.header().fileLabel)));
    }
    compareVariables(dataset, golden);
    compareRows(dataset, golden, golden["head_rows"], 0);
    compareRows(dataset, golden, golden["tail_rows"], golden["tail_start"].get<int>());
}

TEST_P(GoldenFiles, agree)
{
    int compared = 0;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder / "golden" / GetParam())) {
        if (!entry.path().string().ends_with(".golden.json")) {
            continue;
        }
        const json golden = json::parse(std::ifstream(entry.path()));
        if (golden.contains("variables")) {
            compare(m_folder, golden);
            ++compared;
        }
    }
    EXPECT_GT(compared, 0);
}

INSTANTIATE_TEST_SUITE_P(Formats, GoldenFiles,
                         testing::Values("sas7bdat", "xpt", "sav", "dta", "r"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace
