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
    EXPECT_EQ(files.size(), 33U);
    EXPECT_EQ(readBack(target / "adsl.sas7bdat")->observationCount(), 60);
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
