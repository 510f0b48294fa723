#include "tests/samples/ReadBack.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>
#include <sys/wait.h>

namespace {

/// The exit code of the program, its output and messages in one text.
std::pair<int, std::string> run(const std::string& arguments)
{
    const TemporaryFolder folder;
    const auto output = folder.file("output").string();
    const int status =
        std::system((QUORLANE_SAMPLES_PROGRAM " " + arguments + " > " + output + " 2>&1").c_str());
    return {WEXITSTATUS(status), bytesOf(output)};
}

TEST(SamplesProgram, writesTheStudyIntoANewFolder)
{
    const TemporaryFolder folder;
    const auto target = folder.file("new") / "study";
    const auto [code, output] = run(target.string());
    EXPECT_EQ(code, 0);
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(target)) {
        files.insert(entry.path().filename());
        EXPECT_NE(output.find(entry.path().string()), std::string::npos);
    }
    const std::set<std::string> expected{
        "adae.xpt", "adsl.dta", "adsl.sas7bdat", "adsl.sav", "adsl.xpt",   "ae.dta",
        "ae.sav",   "ae.xpt",   "ae.sas7bdat",   "dm.dta",   "dm.sav",     "dm.xpt",
        "ex.xpt",   "lb.xpt",   "dm.sas7bdat",   "vs.xpt",   "suppae.xpt", "suppdm.xpt"};
    EXPECT_EQ(files, expected);
    EXPECT_EQ(readBack(target / "adsl.sas7bdat")->observationCount(), 60);
}

TEST(SamplesProgram, writesTheBenchmarkTableAsTold)
{
    const TemporaryFolder folder;
    const auto path = folder.file("t.sas7bdat");
    EXPECT_EQ(run("--table " + path.string()
                  + " --rows 9 --encoding Windows-1252 --compress rows --layout 32")
                  .first,
              0);
    const auto read = readBack(path);
    EXPECT_EQ(read->observationCount(), 9);
    EXPECT_EQ(read->header().encoding, "WINDOWS-1252");
    EXPECT_FALSE(read->header().is64Bit);
    EXPECT_NE(bytesOf(path).find("SASYZCRL"), std::string::npos);
    EXPECT_EQ(run("--table " + folder.file("t.dta").string() + " --rows 9 --release 117").first, 0);
    EXPECT_EQ(readBack(folder.file("t.dta"))->header().formatVersion, 117);
    EXPECT_EQ(run("--table " + folder.file("t.zsav").string() + " --rows 9").first, 0);
    EXPECT_EQ(bytesOf(folder.file("t.zsav")).substr(0, 4), "$FL3");
}

TEST(SamplesProgram, failuresEndWithCodeTwoAndAMessage)
{
    const TemporaryFolder folder;
    const auto name = [&](const char* file) { return folder.file(file).string(); };
    for (const auto& arguments :
         {std::string(), "--rows 3 " + name("study"), "--table " + name("t.docx"),
          "--table " + name("t.xpt") + " --rows -1",
          "--table " + name("t.sav") + " " + name("study")}) {
        const auto [code, output] = run(arguments);
        EXPECT_EQ(code, 2) << arguments;
        EXPECT_NE(output, "") << arguments;
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
