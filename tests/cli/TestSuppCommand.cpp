#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <sys/wait.h>

namespace {

using samples::textColumn;

class SuppCommand : public testing::Test
{
protected:
    void SetUp() override
    {
        samples::Table dm;
        dm.name = "DM";
        dm.columns = {textColumn("STUDYID", "", 1), textColumn("DOMAIN", "", 2),
                      textColumn("USUBJID", "", 2)};
        dm.rows = {{"S", "DM", "01"}, {"S", "DM", "02"}};
        samples::Table supp;
        supp.name = "SUPPDM";
        supp.columns = {textColumn("STUDYID", "", 1),  textColumn("RDOMAIN", "", 2),
                        textColumn("USUBJID", "", 2),  textColumn("IDVAR", "", 8),
                        textColumn("IDVARVAL", "", 8), textColumn("QNAM", "", 8),
                        textColumn("QVAL", "", 8)};
        supp.rows = {{"S", "DM", "02", "", "", "RACE1", "ASIAN"},
                     {"S", "DM", "03", "", "", "RACE1", "WHITE"},
                     {"S", "DM", "02", "", "", "RACE1", "BLACK"}};
        samples::writeTable(m_folder.file("dm.xpt"), dm);
        samples::writeTable(m_folder.file("suppdm.xpt"), supp);
        const std::array both{supp, dm};
        samples::writeTransport(m_folder.file("study.xpt"), both);
    }

    /// What is printed, errors included, and the exit code in a last line.
    [[nodiscard]] std::string supp(const std::string& arguments) const
    {
        const std::string line =
            "cd '" + m_folder.path().string() + "' && " + QUORLANE_CLI + " 2>&1 supp " + arguments;
        FILE* pipe = popen(line.c_str(), "r");
        std::string out;
        std::array<char, 4096> part{};
        for (std::size_t got = 0; (got = fread(part.data(), 1, part.size(), pipe)) > 0;) {
            out.append(part.data(), got);
        }
        return out + std::to_string(WEXITSTATUS(pclose(pipe)));
    }

    TemporaryFolder m_folder;
};

TEST_F(SuppCommand, printsTheJoinedRowsAndTellsWhatIsWrong)
{
    EXPECT_EQ(supp("dm.xpt suppdm.xpt --format tsv --drop STUDYID --sort USUBJID:desc "
                   "--where \"USUBJID ne '09'\" 2>/dev/null"),
              "Obs\tDOMAIN\tUSUBJID\tRACE1\n2\tDM\t02\tASIAN | BLACK\n1\tDM\t01\t\n0");
    EXPECT_EQ(supp("dm.xpt suppdm.xpt >/dev/null"),
              "quorlane-cli: SUPPDM row 2, 03 RACE1=WHITE: No observation belongs to this subject\n"
              "quorlane-cli: SUPPDM row 3, 02 RACE1=BLACK: Row 1 of SUPPDM has another value: "
              "ASIAN\n0");
    EXPECT_EQ(supp("suppdm.xpt dm.xpt"),
              "quorlane-cli: SUPPDM: There is no variable named DOMAIN\n2");
}

TEST_F(SuppCommand, listsProblemsAndFindsTheSupplementWithinAFile)
{
    EXPECT_EQ(supp("study.xpt study.xpt --member DM --problems --format json"),
              R"({"dataset":"SUPPDM","row":2,"subject":"03","idvar":"","idvarval":"",)"
              R"("qnam":"RACE1","qval":"WHITE","problem":"No observation belongs to this subject"})"
              "\n"
              R"({"dataset":"SUPPDM","row":3,"subject":"02","idvar":"","idvarval":"",)"
              R"("qnam":"RACE1","qval":"BLACK","problem":"Row 1 of SUPPDM has another value: )"
              R"(ASIAN","conflict":{"dataset":"SUPPDM","row":1,"qval":"ASIAN","obs":2,)"
              R"("observations":1}})"
              "\n0");
}

}  // namespace
