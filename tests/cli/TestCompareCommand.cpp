#include "samples/TableWriter.h"
#include "tests/support/CommandRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

class CompareCommand : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* const folder : {"base", "qc"}) {
            std::filesystem::create_directory(m_folder.file(folder));
        }
        write("base/vs.xpt", {{"01", 1.0, 10.0}, {"01", 2.0, 0.5}, {"02", 1.0, samples::missing}});
        write("qc/vs.xpt", {{"02", 1.0, 3.0}, {"01", 1.0, 10.25}, {"03", 1.0, 8.0}});
        write("base/dm.xpt", {{"01", 1.0, 1.0}});
        write("qc/dm.xpt", {{"01", 1.0, 1.0}}, "Other label");
        write("base/ae.xpt", {{"01", 1.0, 1.0}});
        write("qc/ex.xpt", {{"01", 1.0, 1.0}});
    }

    void write(const std::string& file, std::vector<samples::Row> rows,
               const std::string& label = "Number")
    {
        samples::Table table;
        table.name = "T";
        table.columns = {samples::textColumn("SUBJ", "Subject", 2),
                         samples::numberColumn("SEQ", label),
                         samples::numberColumn("VAL", "Value", "F", 8, 1)};
        table.rows = std::move(rows);
        samples::writeTable(m_folder.file(file), table);
    }

    [[nodiscard]] CommandRun compare(const std::string& base, const std::string& other,
                                     const std::string& options = {}) const
    {
        return runCommand(std::string(QUORLANE_CLI) + " compare '" + m_folder.file(base).string()
                              + "' '" + m_folder.file(other).string() + "' " + options,
                          m_folder);
    }

    TemporaryFolder m_folder;
};

TEST_F(CompareCommand, exitCodesTellTheCommandRun)
{
    EXPECT_EQ(compare("base/dm.xpt", "base/dm.xpt", "--strict").code, 0);
    EXPECT_EQ(compare("base/dm.xpt", "qc/dm.xpt").code, 0) << "attributes alone";
    EXPECT_EQ(compare("base/dm.xpt", "qc/dm.xpt", "--strict").code, 1);
    EXPECT_EQ(compare("base/vs.xpt", "qc/vs.xpt").code, 1);
    EXPECT_EQ(compare("base/vs.xpt", "qc/vs.xpt",
                      "--id SUBJ SEQ --where 'SUBJ = \"01\" and SEQ = 1' --method absolute "
                      "--criterion 0.25")
                  .code,
              0);
    const CommandRun absent = compare("base/vs.xpt", "qc/nothing.xpt", "--format json");
    EXPECT_EQ(absent.code, 2);
    EXPECT_NE(absent.err.find("nothing.xpt"), std::string::npos) << absent.err;
    EXPECT_EQ(json::parse(absent.out)["sysinfo"], 32768);
    EXPECT_EQ(compare("base", "qc/vs.xpt").code, 2);
}

TEST_F(CompareCommand, jsonHoldsEveryCount)
{
    const CommandRun outcome = compare("base/vs.xpt", "qc/vs.xpt",
                                       "--format json --id SUBJ SEQ --method 'Percent' "
                                       "--criterion-for VAL=2.4");
    ASSERT_EQ(outcome.code, 1) << outcome.err;
    const json result = json::parse(outcome.out);
    EXPECT_EQ(result["sysinfo"], 64 + 128 + 4096);
    EXPECT_EQ(result["different"], true);
    EXPECT_EQ(result["method"], "PERCENT");
    EXPECT_EQ(result["observations"],
              (json{{"common", 2},
                    {"baseOnly", 1},
                    {"compareOnly", 1},
                    {"baseRead", 3},
                    {"compareRead", 3},
                    {"baseDuplicates", 0},
                    {"compareDuplicates", 0},
                    {"unequal", 2},
                    {"equal", 0}}));
    EXPECT_EQ(result["variables"]["id"], (json{"SUBJ", "SEQ"}));
    EXPECT_EQ(result["values"]["unequal"], 2);
    EXPECT_EQ(result["values"]["withMissingDifferences"], 1);
    EXPECT_EQ(result["values"]["byVariable"][0]["maximum"], 2.5);
    EXPECT_EQ(result["values"]["byVariable"][0]["criterion"], 2.4);
    EXPECT_NE(result["notes"][0].get<std::string>().find("not sorted"), std::string::npos);
}

TEST_F(CompareCommand, idVariablesSuggestThemselves)
{
    write("base/lb.xpt", {{"01", 1.0, 1.0}, {"02", 2.0, 5.0}});
    write("qc/lb.xpt", {{"02", 2.0, 6.0}, {"01", 1.0, 1.0}});
    const json result = json::parse(
        compare("base/lb.xpt", "qc/lb.xpt", "--format json --propose-id --differences").out);
    EXPECT_EQ(result["variables"]["id"], json::array({"SUBJ"}));
    EXPECT_EQ(result["differences"],
              json::array({{{"variable", "VAL"},
                            {"baseObs", 2},
                            {"compareObs", 1},
                            {"id", {{"SUBJ", "02"}}},
                            {"base", "5.0"},
                            {"compare", "6.0"},
                            {"difference", 1.0},
                            {"percent", 20.0}}}));
    EXPECT_EQ(result["unmatched"], json::array());
    EXPECT_FALSE(json::parse(compare("base/lb.xpt", "qc/lb.xpt", "--format json").out)
                     .contains("differences"));
}

TEST_F(CompareCommand, programIsPrintedInsteadOfTheReport)
{
    const CommandRun run = compare("base/vs.xpt", "qc/dm.xpt",
                                   "--program --id subj --where 'SEQ = 1' --criterion 0.1");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_TRUE(run.out.starts_with("libname baselib xport '"
                                    + m_folder.file("base/vs.xpt").string()
                                    + "';\ndata work.base;\n    set baselib.t;\n"
                                      "    where SEQ = 1;\n"))
        << run.out;
    EXPECT_TRUE(run.out.ends_with(" criterion=0.1 maxprint=(50,500);\n    id SUBJ;\nrun;\n"))
        << run.out;
    EXPECT_EQ(compare("base/vs.xpt", "qc/vs.xpt", "--program --id NOID").code, 2);
    EXPECT_EQ(compare("base/vs.xpt", "qc/vs.xpt",
                      "--program --with VAL SEQ --var VAL --criterion-for VAL=1")
                  .code,
              2);
}

TEST_F(CompareCommand, tsvHoldsEveryDifference)
{
    EXPECT_EQ(compare("base/vs.xpt", "qc/vs.xpt", "--format tsv --id subj --id seq").out,
              "Kind\tVariable\tBaseObs\tCompareObs\tSUBJ\tSEQ\tBase\tCompare\tDifference\tPercent\n"
              "base only\t\t2\t\t01\t2\t\t\t\t\n"
              "compare only\t\t\t3\t03\t1\t\t\t\t\n"
              "value\tVAL\t1\t2\t01\t1\t10.0\t10.2\t0.25\t2.5\n"
              "value\tVAL\t3\t1\t02\t1\t.\t3.0\t.\t.\n");
}

TEST_F(CompareCommand, optionsReachTheReport)
{
    const auto text = [this](const std::string& options) {
        const CommandRun outcome = compare("base/vs.xpt", "qc/vs.xpt", options);
        EXPECT_EQ(outcome.code, 1) << outcome.err;
        return outcome.out;
    };
    const auto has = [&](const std::string& options, const std::string& part) {
        return text(options).find(part) != std::string::npos;
    };
    EXPECT_TRUE(has("--method 'relative(0.5)' --criterion 0.001",
                    "(Method=RELATIVE(0.5), Criterion=0.001)"));
    EXPECT_TRUE(has("--id SUBJ SEQ --list baseobs", "Observation 2 in BASE.T not found"));
    EXPECT_FALSE(has("--id SUBJ SEQ --list compobs", "Observation 2 in BASE.T not found"));
    EXPECT_TRUE(has("--list EQUALVAR --id SUBJ --var SEQ VAL --with SEQ SEQ", "All Equal Values"));
    EXPECT_TRUE(has("--brief", "NOTE: Values of the following 3 variables compare unequal:"));
    EXPECT_FALSE(has("--novalues", "Value Comparison Results"));
    EXPECT_FALSE(has("--nosummary", "Summary"));
    EXPECT_TRUE(has("--transpose", "_OBS_1=1  _OBS_2=1:"));
    EXPECT_TRUE(has("--maxprint 1 2", "MAXPRINT=2 printing limit"));
    EXPECT_TRUE(has("--var VAL --nomissbase", "Missing") == false);
    EXPECT_TRUE(has("--var VAL --nomisscomp", "Missing"));
    for (const char* const wrong :
         {"--method fuzzy", "--criterion-for VAL", "--list nothing", "--linesize 20",
          "--method absolute --criterion-for SUBJ=1", "--id NOID", "--method 'relative(2)'"}) {
        EXPECT_EQ(compare("base/vs.xpt", "qc/vs.xpt", wrong).code, 2) << wrong;
    }
}

TEST_F(CompareCommand, foldersAreComparedDatasetByDataset)
{
    const CommandRun outcome = compare("base", "qc", "--format tsv --id SUBJ SEQ VISIT");
    EXPECT_EQ(outcome.code, 1) << outcome.err;
    EXPECT_EQ(outcome.out,
              "Dataset\tBaseObs\tCompareObs\tCommon\tVariables\tUnequalVars\tUnequalValues\t"
              "SYSINFO\tOutcome\n"
              "AE\t\t\t\t\t\t\t\tbase only\n"
              "DM\t1\t1\t1\t1\t0\t0\t32\tequal but for attributes\n"
              "EX\t\t\t\t\t\t\t\tcompare only\n"
              "VS\t3\t3\t2\t1\t1\t2\t4288\tdifferent\n");
    EXPECT_EQ(compare("base", "base").code, 0);
    const json summary = json::parse(compare("base", "qc", "--format json").out);
    EXPECT_EQ(summary["equal"], 1);
    EXPECT_EQ(summary["datasets"][1]["comparison"]["sysinfo"], 32);
    std::ofstream(m_folder.file("qc/ae.xpt")) << "no transport file";
    const CommandRun broken = compare("base", "qc");
    EXPECT_EQ(broken.code, 2);
    EXPECT_NE(broken.out.find("not compared: "), std::string::npos) << broken.out;
    EXPECT_NE(broken.out.find("4 datasets: 1 equal, 2 different, 1 not compared"),
              std::string::npos)
        << broken.out;
}

}  // namespace
