#include "analysis/comparison/CompareProgram.h"
#include "analysis/comparison/CompareWords.h"

#include <gtest/gtest.h>

namespace {

using comparison::Method;
using comparison::ProgramSource;
using comparison::programText;
using comparison::ReportOptions;
using comparison::Request;

/// The program that compares two transport files, from its comparison on.
std::string compareSteps(const Request& request, const ReportOptions& options = {})
{
    const std::string text = programText({"/b/x.xpt", "X"}, {"/c/x.xpt", "X"}, request, options);
    return text.substr(text.find("\n\n", text.find("compare;\n")) + 2);
}

TEST(CompareProgram, eachFileIsReadTheWayOfItsFormat)
{
    EXPECT_EQ(programText({"/a/it's/DM.XPT", "DM", {"where SEX = 'F';", "if AGE > 30;"}},
                          {"/b/dm.sas7bdat", "DM"}, {.id = {"USUBJID", "my id"}}, {}),
              "libname baselib xport '/a/it''s/DM.XPT';\n"
              "data work.base;\n"
              "    set baselib.DM;\n"
              "    where SEX = 'F';\n"
              "    if AGE > 30;\n"
              "run;\n"
              "proc sort data=work.base;\n"
              "    by USUBJID 'my id'n;\n"
              "run;\n"
              "\n"
              "libname comparelib '/b';\n"
              "data work.compare;\n"
              "    set comparelib.DM;\n"
              "run;\n"
              "proc sort data=work.compare;\n"
              "    by USUBJID 'my id'n;\n"
              "run;\n"
              "\n"
              "proc compare base=work.base compare=work.compare maxprint=(50,500);\n"
              "    id USUBJID 'my id'n;\n"
              "run;\n");
    EXPECT_EQ(programText({"/a/dm.csv", "DM"}, {"/a/dm.rds", "DM", {"if AGE > 1;"}}, {}, {}),
              "proc import datafile='/a/dm.csv' out=work.base dbms=csv replace;\n"
              "    guessingrows=max;\n"
              "run;\n"
              "\n"
              "/* Read DM into work.compare here. */\n"
              "/* Its file: /a/dm.rds */\n"
              "data work.compare;\n"
              "    set work.compare;\n"
              "    if AGE > 1;\n"
              "run;\n"
              "\n"
              "proc compare base=work.base compare=work.compare maxprint=(50,500);\n"
              "run;\n");
}

TEST(CompareProgram, whatCountsAsEqualAndWhatIsReportedAreOptions)
{
    Request request{.method = Method::Relative, .criterion = 0.001, .delta = 0.5};
    request.missingCompareEqualsAll = true;
    ReportOptions options;
    options.listBaseObservations = true;
    options.statistics = true;
    options.fuzz = 0.01;
    options.maxTotal = 7;
    EXPECT_EQ(compareSteps(request, options),
              "proc compare base=work.base compare=work.compare method=RELATIVE(0.5) "
              "criterion=0.001 nomisscomp listbaseobs stats fuzz=0.01 maxprint=(50,7);\n"
              "run;\n");
}

TEST(CompareProgram, variablesWithACriterionOfTheirOwnGetSteps)
{
    Request request{.var = {"A", "B", "C"}, .with = {"X", "Y", "Z"}, .method = Method::Percent};
    request.variableCriteria = {{"b", 0.1, Method::Absolute}, {"C", 2}};
    const std::string start = "proc compare base=work.base compare=work.compare method=";
    EXPECT_EQ(compareSteps(request),
              start + "PERCENT maxprint=(50,500);\n    var A;\n    with X;\nrun;\n\n" + start
                  + "ABSOLUTE criterion=0.1 maxprint=(50,500);\n    var b;\n    with Y;\nrun;\n\n"
                  + start
                  + "PERCENT criterion=2 maxprint=(50,500);\n    var C;\n    with Z;\nrun;\n");
    // EXACT takes no criterion, and all common variables cannot be listed without the datasets.
    request = {.method = Method::Exact, .variableCriteria = {{"B", 0.5}}};
    EXPECT_EQ(compareSteps(request),
              "/* The steps behind this one compare B once more. */\n" + start
                  + "EXACT maxprint=(50,500);\nrun;\n\n"
                    "proc compare base=work.base compare=work.compare criterion=0.5 "
                    "maxprint=(50,500);\n    var B;\nrun;\n");
    // Nothing is left for the common step.
    request = {.var = {"B"}, .variableCriteria = {{"B", 0.5}}};
    EXPECT_TRUE(compareSteps(request).starts_with("\nproc compare")) << compareSteps(request);
}

TEST(CompareWords, criteriaAreReadWholeOrNotAtAll)
{
    const auto own = comparison::criterionOf("A=B=-1e-3:Absolute");
    ASSERT_TRUE(own);
    EXPECT_EQ(own.value().variable, "A=B");
    EXPECT_EQ(own.value().criterion, -0.001);
    EXPECT_EQ(own.value().method, Method::Absolute);
    EXPECT_FALSE(comparison::criterionOf("A=1").value().method);
    for (const char* const wrong : {"A", "=1", "A=", "A=1x", "A=1:", "A=1:exac", "A=1:exactly"}) {
        EXPECT_FALSE(comparison::criterionOf(wrong)) << wrong;
    }
}

}  // namespace
