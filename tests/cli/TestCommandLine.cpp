#include "samples/TableWriter.h"
#include "tests/support/CommandRun.h"

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

using nlohmann::json;

class CommandLine : public testing::Test
{
protected:
    void SetUp() override
    {
        samples::Table table;
        table.name = "AE";
        table.label = "Adverse \"events\"";
        samples::Column term = samples::textColumn("AETERM", "Term", 20);
        samples::Column start = samples::numberColumn("ASTDT", "Start", "DATE", 9);
        table.columns = {term, start, samples::numberColumn("AVAL", "Value", "F", 8, 1)};
        table.rows = {
            {"HEADACHE", 0.0, 0.1}, {"RASH\tred", samples::missing, 2.25}, {"NAUSEA", 1.0, -1e10}};
        samples::writeTable(m_folder.file("ae.xpt"), table);
    }

    /// Runs the program on the file of the test.
    CommandRun run(const std::string& command, const std::string& options = {},
                   const std::string& file = "ae.xpt") const
    {
        return runCommand(std::string(QUORLANE_CLI) + ' ' + command + " '"
                              + m_folder.file(file).string() + "' " + options,
                          m_folder);
    }

    [[nodiscard]] static std::vector<json> jsonLines(const std::string& text)
    {
        std::vector<json> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(json::parse(line));
        }
        return lines;
    }

    TemporaryFolder m_folder;
};

TEST_F(CommandLine, contentsDescribesTheDataset)
{
    const CommandRun outcome = run("contents", "--format json");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const json contents = json::parse(outcome.out);
    EXPECT_EQ(contents["table"], "AE");
    EXPECT_EQ(contents["label"], "Adverse \"events\"");
    EXPECT_EQ(contents["rows"], 3);
    EXPECT_EQ(contents["members"], json({"AE"}));
    EXPECT_EQ(contents["variables"][1],
              (json{{"name", "ASTDT"},
                    {"type", 5},
                    {"length", 8},
                    {"format", "DATE"},
                    {"width", 9},
                    {"decimals", 0},
                    {"informat", "DATE9."},
                    {"label", "Start"}}));
    EXPECT_NE(run("contents").out.find("Adverse \"events\""), std::string::npos);
}

TEST_F(CommandLine, contentsOfAFolderComparesVariables)
{
    samples::Table other;
    other.name = "CM";
    other.columns = {samples::textColumn("AETERM", "Reported \"term\"", 30)};
    samples::writeTable(m_folder.file("cm.sas7bdat"), other);
    CommandRun outcome = run("contents", "--format json", "");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const std::vector<json> lines = jsonLines(outcome.out);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1]["differs"], json::array());
    EXPECT_EQ(lines[3],
              (json{{"dataset", "CM"},
                    {"file", "cm.sas7bdat"},
                    {"name", "AETERM"},
                    {"type", "Character"},
                    {"length", 30},
                    {"format", ""},
                    {"label", "Reported \"term\""},
                    {"differs", {"length", "label"}}}));
    std::ofstream(m_folder.file("bad.dta")) << "no such thing";
    outcome = run("contents", "--format tsv", "");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.err.find("quorlane-cli: bad.dta: "), 0U) << outcome.err;
    EXPECT_NE(outcome.out.find("AE\tae.xpt\tASTDT\tNumeric\t8\tDATE9.\t\tStart\n"),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(run("contents", "--member AE", "").err.find("--member needs a file"),
              std::string::npos);
}

TEST_F(CommandLine, rowsShowsCellsAsTheGridDoes)
{
    const auto rows = jsonLines(run("rows", "--format json").out);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], (json{{"obs", 1}, {"cells", {"HEADACHE", "01Jan1960", "0.1"}}}));
    EXPECT_EQ(rows[1]["cells"], (json{"RASH\tred", "nan", "2.2"})) << "2.25 lies midway: to even";
}

TEST_F(CommandLine, codeWritesTheProgramOfAView)
{
    const CommandRun outcome = run("code",
                                   "--where 'aeterm  ne  \"RASH\"' --if 'AVAL > -1 or ASTDT = .' "
                                   "--by astdt AETERM --keep aval AETERM AVAL");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("\n\ndata work.ae_view;\n    set "), std::string::npos);
    const std::size_t rest = outcome.out.find(".ae;");
    ASSERT_NE(rest, std::string::npos);
    EXPECT_EQ(outcome.out.substr(rest),
              ".ae;\n    where aeterm ne \"RASH\";\n    if AVAL > -1 or ASTDT = .;\n"
              "    by astdt aeterm;\n    keep aeterm aval;\nrun;\n");
    EXPECT_NE(outcome.out.find(" '" + m_folder.file("x").parent_path().string() + "';"),
              std::string::npos);
    EXPECT_EQ(json::parse(run("code", "--format json").out)["program"].get<std::string>() + "\n",
              run("code").out);
    EXPECT_EQ(run("code", "--keep AETERM ASTDT AVAL").out, run("code").out) << "all are shown";
    for (const auto& [options, reason] :
         {std::pair("--if 'AVALL = 1'",
                    "ae.xpt: --if: There is no variable named AVALL (did you "
                    "mean AVAL?)"),
          std::pair("--where 'AVAL = 1 2'", "--where: "), std::pair("--by X", "named X"),
          std::pair("--keep X", "named X")}) {
        const CommandRun failed = run("code", options);
        EXPECT_EQ(failed.code, 2);
        EXPECT_EQ(failed.out, "");
        EXPECT_NE(failed.err.find(reason), std::string::npos) << failed.err;
    }
}

TEST_F(CommandLine, rowsShowsStoredValuesOnRequest)
{
    const auto rows = jsonLines(run("rows", "--raw --format json").out);
    EXPECT_EQ(rows[0]["cells"][2].get<double>(), 0.1) << "17 digits read back";
    EXPECT_TRUE(rows[1]["cells"][1].is_null());
    EXPECT_EQ(run("rows", "--raw --format tsv --keep ASTDT AVAL").out,
              "Obs\tASTDT\tAVAL\n1\t0\t0.10000000000000001\n2\t.\t2.25\n3\t1\t-10000000000\n");
    EXPECT_EQ(run("rows", "--raw --format tsv --keep AETERM").out,
              "Obs\tAETERM\n1\tHEADACHE\n2\tRASH\\tred\n3\tNAUSEA\n");
}

TEST_F(CommandLine, rowsChoosesSortsAndLimits)
{
    EXPECT_EQ(run("rows", "--format tsv --drop aval --drop ASTDT --first 1").out,
              "Obs\tAETERM\n1\tHEADACHE\n");
    EXPECT_EQ(run("rows", "--format tsv --keep aterm").code, 2);
    EXPECT_EQ(run("rows", "--format tsv --keep AVAL --sort aval:desc").out,
              "Obs\tAVAL\n2\t2.2\n1\t0.1\n3\t-1000000\n")
        << "cut at the width, 8";
    EXPECT_EQ(run("rows", "--format tsv --keep ASTDT --sort ASTDT").out,
              "Obs\tASTDT\n2\tnan\n1\t01Jan1960\n3\t02Jan1960\n")
        << "missing first when ascending";
    EXPECT_EQ(run("rows", "--sort AVAL:down").code, 2);
}

TEST_F(CommandLine, findListsTheCellsThatShowAText)
{
    EXPECT_EQ(run("find", "EA --format tsv").out,
              "Obs\tVariable\tText\n1\tAETERM\tHEADACHE\n3\tAETERM\tNAUSEA\n");
    EXPECT_EQ(jsonLines(run("find", "a --format json --where 'AVAL > 1'").out),
              (std::vector<json>{{{"obs", 2}, {"variable", "AETERM"}, {"text", "RASH\tred"}},
                                 {{"obs", 2}, {"variable", "ASTDT"}, {"text", "nan"}}}));
    EXPECT_EQ(run("find", "''").code, 2);
}

TEST_F(CommandLine, rowsKeepsTheObservationsThatMeetACondition)
{
    const auto observations = [this](const std::string& condition, const std::string& more = {}) {
        const CommandRun outcome =
            run("rows", "--format json --where \"" + condition + "\" " + more);
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        std::vector<int> numbers;
        for (const json& row : jsonLines(outcome.out)) {
            numbers.push_back(row["obs"]);
        }
        return numbers;
    };
    EXPECT_EQ(observations("aval < 1"), (std::vector{1, 3}));
    EXPECT_EQ(observations("AVAL = -1e10 or AVAL > 2"), (std::vector{2, 3}));
    EXPECT_EQ(observations("astdt <= '02JAN1960'd"), (std::vector{1, 2, 3})) << "missing is less";
    EXPECT_EQ(observations("ASTDT isnotnull & index(AETERM, 'A') > 2"), (std::vector{1}));
    EXPECT_EQ(observations("AVAL > -1", "--sort AVAL:desc"), (std::vector{2, 1}));
    EXPECT_EQ(observations("AVAL > -1", "--sort AVAL:desc --first 1"), (std::vector{2}));
    EXPECT_EQ(observations("AVAL > 1000"), std::vector<int>());
}

TEST_F(CommandLine, freqGivesValuesAsStoredAndAsShown)
{
    const auto lines = jsonLines(run("freq", "\"AVAL*ASTDT\" --format json").out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0],
              (json{{"values", {-1e10, 1.0}}, {"texts", {"-1000000", "02Jan1960"}}, {"count", 1}}));
    EXPECT_EQ(lines[2]["values"], (json{2.25, nullptr}));
    EXPECT_EQ(jsonLines(run("freq", "AETERM --format json").out)[2]["values"],
              json::array({"RASH\tred"}));
}

TEST_F(CommandLine, helpIsWrittenForPeople)
{
    const CommandRun outcome = run("rows --help");
    EXPECT_EQ(outcome.code, 0);
    for (const char* const part :
         {"Usage: quorlane-cli rows FILE", "--where CONDITION", "--member"}) {
        EXPECT_NE(outcome.out.find(part), std::string::npos) << outcome.out;
    }
    EXPECT_NE(run("--help").out.find("COMMAND FILE"), std::string::npos);
}

TEST_F(CommandLine, problemsNameTheFileOrVariable)
{
    const CommandRun variable = run("rows", "--keep AETREM");
    EXPECT_EQ(variable.code, 2);
    EXPECT_EQ(variable.out, "");
    EXPECT_NE(variable.err.find("AETREM"), std::string::npos) << variable.err;
    EXPECT_NE(variable.err.find("ae.xpt"), std::string::npos) << variable.err;

    const CommandRun file = run("contents", "", "missing.sav");
    EXPECT_EQ(file.code, 2);
    EXPECT_NE(file.err.find("missing.sav"), std::string::npos) << file.err;
    const CommandRun condition = run("rows", "--where \"AVAL >\"");
    EXPECT_EQ(condition.code, 2);
    EXPECT_EQ(condition.out, "");
    EXPECT_NE(condition.err.find("expect value"), std::string::npos) << condition.err;
    EXPECT_NE(run("rows", "--where \"AVLA > 1\"").err.find("did you mean AVAL?"),
              std::string::npos);
    EXPECT_EQ(run("contents", "", "ae.txt").code, 2);
    EXPECT_EQ(run("rows", "--member DM").code, 2);
    EXPECT_EQ(run("rows", "--format xml").code, 2);
}

TEST_F(CommandLine, aFileThatMayBeDamagedSaysSo)
{
    samples::Table table;
    table.columns = {samples::numberColumn("AGE", "Age")};
    samples::writeTable(m_folder.file("odd.sav"), table);
    std::fstream(m_folder.file("odd.sav"), std::ios::in | std::ios::out | std::ios::binary)
        .seekp(72)
        .put('\7');
    for (const char* const command : {"contents", "rows"}) {
        const CommandRun outcome = run(command, "", "odd.sav");
        EXPECT_EQ(outcome.code, 0) << command;
        EXPECT_NE(outcome.out.find("AGE"), std::string::npos) << outcome.out;
        EXPECT_NE(outcome.err.find("odd.sav: "), std::string::npos) << outcome.err;
        EXPECT_NE(outcome.err.find("unknown compression"), std::string::npos) << outcome.err;
    }
    EXPECT_EQ(run("contents").err, "");
}

TEST_F(CommandLine, aFileOfSeveralDatasetsSaysWhichIsRead)
{
    samples::Table tables[2];
    for (samples::Table& table : tables) {
        table.columns = {samples::numberColumn("AGE", "Age")};
        table.name = &table == tables ? "DM" : "AE";
        table.rows = {{&table == tables ? 1.0 : 2.0}};
    }
    samples::writeTransport(m_folder.file("study.xpt"), tables);
    const CommandRun first = run("rows", "--format tsv", "study.xpt");
    EXPECT_EQ(first.out, "Obs\tAGE\n1\t1\n");
    EXPECT_NE(first.err.find("study.xpt: DM of the datasets DM, AE"), std::string::npos)
        << first.err;
    const CommandRun second = run("rows", "--format tsv --member ae", "study.xpt");
    EXPECT_EQ(second.out, "Obs\tAGE\n1\t2\n");
    EXPECT_EQ(second.err, "");
}

}  // namespace
