#include "workspace/program/ProgramStatements.h"

#include <gtest/gtest.h>

#include <iterator>
#include <ostream>
#include <string>
#include <vector>

namespace {

using Kind = ProgramStatement::Kind;

const char* nameOf(Kind kind)
{
    switch (kind) {
    case Kind::Command:
        return "command";
    case Kind::By:
        return "by";
    case Kind::PassedOver:
        return "passed over";
    case Kind::Unknown:
        return "unknown";
    case Kind::Unclosed:
        return "unclosed";
    }
    return "?";
}

/// A statement as "line kind: text", for By "line by: name|name".
std::string written(const ProgramStatement& statement)
{
    const QString text =
        statement.kind == Kind::By ? statement.names.join(QStringLiteral("|")) : statement.text;
    return std::to_string(statement.line) + ' ' + nameOf(statement.kind) + ": "
        + text.toStdString();
}

struct Program
{
    const char* name;
    std::u16string_view text;
    std::vector<std::string> statements;
};

void PrintTo(const Program& program, std::ostream* stream)
{
    *stream << program.name;
}

class ProgramStatements : public testing::TestWithParam<Program>
{ };

TEST_P(ProgramStatements, AreSplitAndClassified)
{
    std::vector<std::string> found;
    for (const ProgramStatement& statement : programstatements::split(GetParam().text)) {
        found.push_back(written(statement));
    }
    EXPECT_EQ(found, GetParam().statements);
}

const Program programs[] = {
    {"Empty", u"", {}},
    {"OnlyBlanksAndSemicolons", u" ;\n ;; \t", {}},
    {"EveryKind",
     u"libname adam 'C:\\study';\n"
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
    {"WordsInAnyLetterCase",
     u"WHERE A = 1; Run; BY X;",
     {"1 command: WHERE A = 1", "1 passed over: Run", "1 by: X"}},
    {"WordsThatOnlyBeginLikeKnownOnes",
     u"where1; keeper a; running; ifc(1);",
     {"1 unknown: where1", "1 unknown: keeper a", "1 unknown: running", "1 unknown: ifc(1)"}},
    {"ConditionInParentheses", u"if(a = 1);", {"1 command: if(a = 1)"}},
    {"AssignmentsToVariablesOfSuchNames",
     u"data = 3; keep=1; by = 'x';",
     {"1 unknown: data = 3", "1 unknown: keep=1", "1 unknown: by = 'x'"}},
    {"ConditionalStatement",
     u"if a = 1 then delete; if b = ' then ';",
     {"1 unknown: if a = 1 then delete", "1 command: if b = ' then '"}},
    {"SeveralLinesBecomeOne",
     u"where a = 1\n   and\tb = 2\n;keep\n c;",
     {"1 command: where a = 1 and b = 2", "3 command: keep c"}},
    {"CarriageReturns",
     u"\r\nwhere a = 1\r\n and b;\r\nkeep c;\rdrop d;",
     {"2 command: where a = 1 and b", "4 command: keep c", "5 command: drop d"}},
    {"LastSemicolonMissing",
     u"keep a;\nwhere b = 2\n",
     {"1 command: keep a", "2 command: where b = 2"}},
    {"SemicolonsInQuotes",
     u"where a = 'x;y' and b = \"it's; so\"; run;",
     {"1 command: where a = 'x;y' and b = \"it's; so\"", "1 passed over: run"}},
    {"DoubledQuotes",
     u"where a = 'it''s; on' ; run;",
     {"1 command: where a = 'it''s; on'", "1 passed over: run"}},
    {"BlanksInQuotesAreKept", u"if a = 'x  y\tz';", {"1 command: if a = 'x  y\tz'"}},
    {"LineBreakInQuotes",
     u"if a = 'x\r\ny'; run;",
     {"1 command: if a = 'x y'", "2 passed over: run"}},
    {"CommentsAreNoStatements",
     u"/* where a; */ * keep b; %* drop c;\n/* two\nlines */ run;",
     {"3 passed over: run"}},
    {"CommentWithinAStatement", u"where /* not; this */ a = /*x*/ 1;", {"1 command: where a = 1"}},
    {"CommentSeparatesWords", u"keep a/**/b;", {"1 command: keep a b"}},
    {"AsteriskWithinAStatementMultiplies", u"if a * b = 2;", {"1 command: if a * b = 2"}},
    {"QuotesInCommentsDoNotCount",
     u"* don't; keep a; /* isn't */ run;",
     {"1 command: keep a", "1 passed over: run"}},
    {"CommentSignsInQuotesDoNotCount",
     u"if a = '/* x'; if b = '*/';",
     {"1 command: if a = '/* x'", "1 command: if b = '*/'"}},
    {"CommentOfThreeSignsIsNotClosed",
     u"keep a; /*/ drop b;",
     {"1 command: keep a", "1 unclosed: /*/ drop b;"}},
    {"UnclosedQuotes",
     u"keep a;\nif b = 'x;\nrun;",
     {"1 command: keep a", "2 unclosed: if b = 'x; run;"}},
    {"UnclosedBlockComment",
     u"run;\n\n/* where\na = 1;",
     {"1 passed over: run", "3 unclosed: /* where a = 1;"}},
    {"UnclosedBlockCommentWithinAStatement",
     u"where a = 1\n/* and b;",
     {"1 unclosed: where a = 1 /* and b;"}},
    {"UnclosedStarComment", u"run;\n* keep a", {"1 passed over: run", "2 unclosed: * keep a"}},
    {"OrderOfByVariablesIsLeftOut",
     u"by descending a b notsorted; by descending; by a descending b;",
     {"1 by: a|b", "1 by: descending", "1 by: a|b"}},
    {"NameLiterals", u"by 'my var'n \"it\"\"s\"N c;", {"1 by: my var|it\"s|c"}},
    {"ByWithoutNames", u"by;", {"1 by: "}},
};

INSTANTIATE_TEST_SUITE_P(, ProgramStatements, testing::ValuesIn(programs),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
