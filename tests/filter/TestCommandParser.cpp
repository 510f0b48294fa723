#include "grid/filter/CommandParser.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace {

/// Notes down what a command asks for.
class NotingTarget final : public CommandTarget
{
public:
    void clearLibraryFilter() override { m_notes += "clear library;"; }
    void clearDatasetFilter() override { m_notes += "clear dataset;"; }
    void keepVariables(const QStringList& names) override { note("keep", names); }
    void dropVariables(const QStringList& names) override { note("drop", names); }
    void frequencyTable(const QStringList& names, bool frequencyN) override
    {
        note(frequencyN ? "tablen" : "table", names);
    }
    void applyLibraryFilter(const QString& condition) override { note("where", {condition}); }
    void addDatasetFilter(const QString& condition) override { note("if", {condition}); }

    [[nodiscard]] const std::string& notes() const { return m_notes; }

private:
    void note(const std::string& verb, const QStringList& details)
    {
        m_notes += verb + ' ' + details.join(u',').toStdString() + ';';
    }

    std::string m_notes;
};

struct Case
{
    const char* name;
    const char16_t* command;
    const char* effect;
    const char* error;  ///< empty for none
};

std::ostream& operator<<(std::ostream& stream, const Case& row)
{
    return stream << row.name;
}

class Command : public testing::TestWithParam<Case>
{ };

TEST_P(Command, hasItsEffectAndError)
{
    NotingTarget target;
    std::string error;
    try {
        CommandParser(GetParam().command, target).run();
    } catch (const ParseError& thrown) {
        error = thrown.what();
    }
    EXPECT_EQ(target.notes(), GetParam().effect);
    EXPECT_EQ(error, GetParam().error);
}

const std::vector<Case> effects{
    {"ClearLibrary", u"CLEAR Library Filter", "clear library;", ""},
    {"ClearLibraryAnyWord", u"clear library xyz", "clear library;", ""},
    {"ClearDataset", u"clear dataset filter", "clear dataset;", ""},
    {"Clf", u" clf ", "clear library;", ""},
    {"Cdf", u"Cdf", "clear dataset;", ""},
    {"Keep", u"keep a B _c", "keep a,B,_c;", ""},
    {"Drop", u"DROP age", "drop age;", ""},
    {"Table", u"table sex", "table sex;", ""},
    {"Tables", u"tables a * b*c", "table a,b,c;", ""},
    {"TableN", u"tableN a*b", "tablen a,b;", ""},
    {"Where", u"where a=1", "where a = 1;", ""},
    {"If", u"IF a=1|b=2", "if a = 1 or b = 2;", ""},
};

// The action comes before the look at what follows it.
const std::vector<Case> effectsBeforeErrors{
    {"ClfTrailing", u"clf x", "clear library;", "unexpected trailing text"},
    {"CdfTrailing", u"cdf 5", "clear dataset;", "unexpected trailing text"},
    {"ClearTrailing", u"clear library filter now", "clear library;", "unexpected trailing text"},
    {"WhereTrailing", u"where a = 1 )", "where a = 1;", "unexpected trailing text"},
    {"IfTrailingValue", u"if a > 1.2.3", "if a > 1.2;", "unexpected trailing text"},
    {"KeepTrailing", u"keep a b, c", "keep a,b;", "unexpected trailing text"},
    {"TableTrailing", u"table a b", "table a;", "unexpected trailing text"},
    {"TypedExponent", u"where a = 1e5", "where a = 1;", "unexpected trailing text"},
};

const std::vector<Case> errors{
    {"Empty", u"", "", "command must start with identifier"},
    {"StartsWithNumber", u"5 clf", "", "command must start with identifier"},
    {"StartsWithOperator", u"= 1", "", "command must start with identifier"},
    {"Unknown", u"filter a = 1", "", "unknown command"},
    {"UnknownLonger", u"clff", "", "unknown command"},
    {"ClearAlone", u"clear", "", "clear must follow library|dataset"},
    {"ClearOther", u"clear all filter", "", "clear must follow library|dataset"},
    {"ClearString", u"clear 'library' filter", "", "clear must follow library|dataset"},
    {"ClearLibraryAlone", u"clear library", "", "expect 'filter'"},
    {"ClearDatasetNumber", u"clear dataset 5", "", "expect 'filter'"},
    {"KeepNothing", u"keep", "", "expect variable name"},
    {"DropNumber", u"drop 5", "", "expect variable name"},
    {"TableNothing", u"table", "", "table needs variable(s)"},
    {"TableStar", u"tables * a", "", "table needs variable(s)"},
    {"TableStarNothing", u"tablen a *", "", "expect variable"},
    {"TableStarNumber", u"table a * 5", "", "expect variable"},
    {"WhereNothing", u"where", "", "expect variable name or a function"},
    {"IfNoValue", u"if a = 1 and b =", "", "expect value"},
    {"TypedSign", u"where a = -1", "", "unknown character in input"},
    {"UnknownCharacter", u"clf #", "", "unknown character in input"},
    {"UnterminatedAfterCondition", u"where a = 1 'b", "", "unterminated string literal"},
};

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Effects, Command, testing::ValuesIn(effects), nameOf);
INSTANTIATE_TEST_SUITE_P(EffectsBeforeErrors, Command, testing::ValuesIn(effectsBeforeErrors),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Errors, Command, testing::ValuesIn(errors), nameOf);

}  // namespace
