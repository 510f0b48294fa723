#include "grid/filter/CommandParser.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace {

/// What a command asks for, in one line.
struct Notes
{
    std::string operator()(Command::ClearLibraryFilter) const { return "clear library;"; }
    std::string operator()(Command::ClearDatasetFilter) const { return "clear dataset;"; }
    std::string operator()(const Command::KeepVariables& keep) const
    {
        return note("keep", keep.names);
    }
    std::string operator()(const Command::DropVariables& drop) const
    {
        return note("drop", drop.names);
    }
    std::string operator()(const Command::FrequencyTable& table) const
    {
        return note(table.frequencyN ? "tablen" : "table", table.names);
    }
    std::string operator()(const Command::SetLibraryFilter& filter) const
    {
        return note("where", {filter.condition.text});
    }
    std::string operator()(const Command::AddDatasetFilter& filter) const
    {
        return note("if", {filter.condition.text});
    }

private:
    static std::string note(const std::string& verb, const QStringList& details)
    {
        return verb + ' ' + details.join(u',').toStdString() + ';';
    }
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

class Commands : public testing::TestWithParam<Case>
{ };

TEST_P(Commands, hasItsEffectAndError)
{
    std::string notes;
    std::string error;
    try {
        const Command command = CommandParser::parse(GetParam().command, Dialect::Command);
        notes = std::visit(Notes(), command.action);
        error = command.hasTrailingText ? ParseError::trailingText().what() : "";
    } catch (const ParseError& thrown) {
        error = thrown.what();
    }
    EXPECT_EQ(notes, GetParam().effect);
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

INSTANTIATE_TEST_SUITE_P(Effects, Commands, testing::ValuesIn(effects), nameOf);
INSTANTIATE_TEST_SUITE_P(EffectsBeforeErrors, Commands, testing::ValuesIn(effectsBeforeErrors),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Errors, Commands, testing::ValuesIn(errors), nameOf);

}  // namespace
