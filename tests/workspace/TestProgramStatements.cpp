#include "workspace/program/ProgramStatements.h"
#include "workspace/program/ProgramText.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

/// A statement as "line kind: text", for By "line by: name|name".
std::string written(const ProgramStatement& statement)
{
    static const std::map<ProgramStatement::Kind, const char*> kinds{
        {ProgramStatement::Kind::Command, " command: "},
        {ProgramStatement::Kind::By, " by: "},
        {ProgramStatement::Kind::PassedOver, " passed over: "},
        {ProgramStatement::Kind::Unknown, " unknown: "},
        {ProgramStatement::Kind::Unclosed, " unclosed: "},
    };
    const bool isBy = statement.kind == ProgramStatement::Kind::By;
    return std::to_string(statement.line) + kinds.at(statement.kind)
        + (isBy ? statement.names.join('|') : statement.text).toStdString();
}

struct Program
{
    std::u16string_view text;
    std::vector<std::string> statements;
};

const Program programs[] = {
    {u"", {}},
    {u" ;\n ;; \t", {}},
    {u"libname adam 'C:\\study';\n"
     u"data work.adults;\n"
     u"  set adam.adsl;\n"
     u"  where age >= 18;\n"
     u"  if sex = 'F';\n"
     u"  keep usubjid age;\n"
     u"  drop age;\n"
     u"  by siteid usubjid;\n"
     u"run;\n"
     u"proc print;\n",
     {"1 passed over: libname adam 'C:\\study'", "2 passed over: data work.adults",
      "3 passed over: set adam.adsl", "4 command: where age >= 18", "5 command: if sex = 'F'",
      "6 command: keep usubjid age", "7 command: drop age", "8 by: siteid|usubjid",
      "9 passed over: run", "10 unknown: proc print"}},
    {u"WHERE A = 1; Run; BY X;", {"1 command: WHERE A = 1", "1 passed over: Run", "1 by: X"}},
    {u"where1; keeper a; running; ifc(1);",
     {"1 unknown: where1", "1 unknown: keeper a", "1 unknown: running", "1 unknown: ifc(1)"}},
    {u"if(a = 1);", {"1 command: if(a = 1)"}},
    {u"data = 3; keep=1; by = 'x';",
     {"1 unknown: data = 3", "1 unknown: keep=1", "1 unknown: by = 'x'"}},
    {u"if a = 1 then delete; if b = ' then ';",
     {"1 unknown: if a = 1 then delete", "1 command: if b = ' then '"}},
    {u"where a = 1\n   and\tb = 2\n;keep\n c;",
     {"1 command: where a = 1 and b = 2", "3 command: keep c"}},
    {u"\r\nwhere a = 1\r\n and b;\r\nkeep c;\rdrop d;",
     {"2 command: where a = 1 and b", "4 command: keep c", "5 command: drop d"}},
    {u"keep a;\nwhere b = 2\n", {"1 command: keep a", "2 command: where b = 2"}},
    {u"where a = 'x;y' and b = \"it's; so\"; run;",
     {"1 command: where a = 'x;y' and b = \"it's; so\"", "1 passed over: run"}},
    {u"where a = 'it''s; on' ; run;", {"1 command: where a = 'it''s; on'", "1 passed over: run"}},
    {u"if a = 'x  y\tz';", {"1 command: if a = 'x  y\tz'"}},
    {u"if a = 'x\r\ny'; run;", {"1 command: if a = 'x y'", "2 passed over: run"}},
    {u"/* where a; */ * keep b; %* drop c;\n/* two\nlines */ run;", {"3 passed over: run"}},
    {u"where /* not; this */ a = /*x*/ 1;", {"1 command: where a = 1"}},
    {u"keep a/**/b;", {"1 command: keep a b"}},
    {u"if a * b = 2;", {"1 command: if a * b = 2"}},
    {u"* don't; keep a; /* isn't */ run;", {"1 command: keep a", "1 passed over: run"}},
    {u"if a = '/* x'; if b = '*/';", {"1 command: if a = '/* x'", "1 command: if b = '*/'"}},
    {u"keep a; /*/ drop b;", {"1 command: keep a", "1 unclosed: /*/ drop b;"}},
    {u"keep a;\nif b = 'x;\nrun;", {"1 command: keep a", "2 unclosed: if b = 'x; run;"}},
    {u"run;\n\n/* where\na = 1;", {"1 passed over: run", "3 unclosed: /* where a = 1;"}},
    {u"where a = 1\n/* and b;", {"1 unclosed: where a = 1 /* and b;"}},
    {u"run;\n* keep a", {"1 passed over: run", "2 unclosed: * keep a"}},
    {u"by descending a b notsorted; by descending; by a descending b;",
     {"1 by: a|b", "1 by: descending", "1 by: a|b"}},
    {u"by 'my var'n \"it\"\"s\"N c;", {"1 by: my var|it\"s|c"}},
    {u"by;", {"1 by: "}},
};

TEST(ProgramStatements, AreSplitAndClassified)
{
    for (const Program& program : programs) {
        std::vector<std::string> found;
        for (const ProgramStatement& statement : programstatements::split(program.text)) {
            found.push_back(written(statement));
        }
        EXPECT_EQ(found, program.statements) << QStringView(program.text).toString().toStdString();
    }
}

TEST(ProgramText, ReproducesAView)
{
    programtext::View view{"/study/it's/ 1data-2024_x/1-AE.sas7bdat"};
    view.datasetName = "1-Adverse Events";
    view.libraryFilter = " where A = 1 ";
    view.datasetFilter = "if 'b c'n = 2;";
    view.byVariables = {"SEX", "ARM D"};
    view.shownVariables = {"SEX", "gr\u00F6\u00DFe.2", QString(40, 'X')};
    view.variableCount = 4;
    EXPECT_EQ(programtext::of(view).toStdString(),
              "/* Auto-generated SAS code for the current table view */\n"
              "libname data_202 '/study/it''s/ 1data-2024_x';\n"
              "\n"
              "data work._adverse_events_view;\n"
              "    set data_202._adverse_events;\n"
              "    where A = 1;\n"
              "    if 'b c'n = 2;\n"
              "    by sex arm_d;\n"
              "    keep sex gr\u00F6\u00DFe2 xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx;\n"
              "run;");
    view = {"/d/\u00A7.sav", {"/lib", "", "My Library"}, "99%"};
    view.shownVariables = {"A"};
    view.variableCount = 1;
    EXPECT_EQ(programtext::of(view).toStdString(),
              "/* Auto-generated SAS code for the current table view */\n"
              "libname my_libra '/lib';\n"
              "\n"
              "data work.temp_view;\n"
              "    set my_libra.temp;\n"
              "run;");
    view.library.alias = "ALIAS";
    EXPECT_EQ(programtext::makeLibref(view.library, "/x"), "alias");
    EXPECT_EQ(programtext::makeSasName("5", 3, "%9-a"), "_a");
}

}  // namespace
