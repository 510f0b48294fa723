#include "FileReader.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sys/wait.h>

namespace {

struct Outcome
{
    int code = -1;
    std::string output;
    std::string errors;
};

class SamplesProgram : public testing::Test
{
protected:
    Outcome run(const std::string& arguments)
    {
        const auto output = streams.file("output");
        const auto errors = streams.file("errors");
        const auto command = std::string(QUORLANE_SAMPLES_PROGRAM) + " " + arguments + " > "
            + output.string() + " 2> " + errors.string();
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytesOf(output), bytesOf(errors)};
    }

    TemporaryFolder streams;
    TemporaryFolder folder;
};

TEST_F(SamplesProgram, writesTheStudyIntoANewFolder)
{
    const auto target = folder.file("new") / "study";
    const auto outcome = run(target.string());
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors, "");

    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(target)) {
        files.insert(entry.path().filename());
        EXPECT_NE(outcome.output.find(entry.path().string()), std::string::npos);
    }
    const std::set<std::string> expected{
        "adae.xpt", "adsl.dta", "adsl.sas7bdat", "adsl.sav", "adsl.xpt",   "ae.dta",
        "ae.sav",   "ae.xpt",   "ae.sas7bdat",   "dm.dta",   "dm.sav",     "dm.xpt",
        "ex.xpt",   "lb.xpt",   "dm.sas7bdat",   "vs.xpt",   "suppae.xpt", "suppdm.xpt"};
    EXPECT_EQ(files, expected);
    EXPECT_EQ(std::ranges::count(outcome.output, '\n'), 18);
    const auto cells = cellTexts(readBack(target / "dm.xpt"));
    EXPECT_EQ(cells.size(), 260U * 28);
    for (const auto* const other : {"dm.sas7bdat", "dm.sav", "dm.dta"}) {
        EXPECT_EQ(cellTexts(readBack(target / other)), cells) << other;
    }
}

TEST_F(SamplesProgram, writesTheBenchmarkTableAsTold)
{
    const auto table = folder.file("t.dta");
    EXPECT_EQ(run("--table " + table.string() + " --rows 12 --release 117").code, 0);
    EXPECT_EQ(readBack(table).rows.size(), 12U);
    EXPECT_EQ(bytesOf(table).find("<release>117<"), 19U);
    const auto sas = folder.file("t.sas7bdat");
    const auto options = " --rows 9 --encoding Windows-1252 --compress rows --layout 32";
    EXPECT_EQ(run("--table " + sas.string() + options).code, 0);
    EXPECT_EQ(readBack(sas).rows.size(), 9U);
    EXPECT_EQ(bytesOf(sas)[70], 62);
    EXPECT_EQ(bytesOf(sas)[32], 0x22);
    EXPECT_NE(bytesOf(sas).find("SASYZCRL"), std::string::npos);
}

TEST_F(SamplesProgram, failuresEndWithCodeTwoAndAMessage)
{
    const auto inFolder = [&](const char* name) { return folder.file(name).string(); };
    for (const auto& arguments : {
             std::string(),
             std::string("--unknown"),
             "--rows 3 " + inFolder("study"),
             "--table " + inFolder("t.docx"),
             "--table " + inFolder("t.xpt") + " --rows many",
             "--table " + inFolder("t.xpt") + " --rows -1",
             "--table " + inFolder("t.xpt") + " --rows 3 --compress rows",
             "--table " + inFolder("no/t.xpt") + " --rows 3",
             "--table " + inFolder("t.sav") + " --rows 3 --encoding windows-1252",
             "--table " + inFolder("t.sav") + " " + inFolder("study"),
         }) {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.code, 2) << arguments;
        EXPECT_NE(outcome.errors, "") << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
