#include "grid/filter/CommandParser.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <string>
#include <utility>
#include <vector>

namespace {

using BareCondition = CommandParser::BareCondition;

/// What a command asks for, in one line.
std::string effectOf(const Command::Action& action)
{
    const QStringList words{"clear library", "clear dataset", "keep", "drop",
                            "table",         "where",         "if"};
    QString text = words[static_cast<qsizetype>(action.index())];
    std::visit(
        [&](const auto& asked) {
            if constexpr (requires { asked.frequencyN; }) {
                text += asked.frequencyN ? u"n" : u"";
            }
            if constexpr (requires { asked.names; }) {
                for (const WrittenName& each : asked.names) {
                    text +=
                        (each.position == asked.names.front().position ? u' ' : u',') + each.name;
                }
            }
            if constexpr (requires { asked.condition; }) {
                text += u' ' + asked.condition.text;
            }
        },
        action);
    return text.toStdString();
}

/// What a command asks for and what is wrong with it.
std::string outcome(QStringView text, BareCondition bare = BareCondition::IsNone)
{
    try {
        const Command command = CommandParser::parse(text, Dialect::Command, bare);
        return effectOf(command.action) + (command.trailingText ? " and trailing text" : "");
    } catch (const ParseError& error) {
        return error.what();
    }
}

void check(const std::vector<std::pair<const char16_t*, const char*>>& table)
{
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(outcome(text), expected) << QStringView(text).toString().toStdString();
    }
}

TEST(CommandParser, readsCommands)
{
    check({{u"CLEAR Library Filter", "clear library"},
           {u"clear library xyz", "clear library"},
           {u"clear dataset filter", "clear dataset"},
           {u" clf ", "clear library"},
           {u"Cdf", "clear dataset"},
           {u"keep a B _c", "keep a,B,_c"},
           {u"DROP age", "drop age"},
           {u"tables a * b*c", "table a,b,c"},
           {u"tableN a*b", "tablen a,b"},
           {u"drop 'a b'n\"it's\"N'it''s'n c", "drop a b,it's,it's,c"},
           {u"where a=1", "where a = 1"},
           {u"IF a=1|b=2", "if a = 1 or b = 2"}});
}

TEST(CommandParser, looksAtWhatFollowsAfterTheCommand)
{
    check({{u"clear library filter now", "clear library and trailing text"},
           {u"where a = 1 )", "where a = 1 and trailing text"},
           {u"where a = 1e5", "where a = 1 and trailing text"},
           {u"keep a b, c", "keep a,b and trailing text"},
           {u"where a = 1 'b", "unterminated string literal"}});
}

TEST(CommandParser, readsConditionsWithoutTheirWordWhereItIsKnown)
{
    for (const auto& [text, expected] : std::vector<std::pair<const char16_t*, const char*>>{
             {u"(a=1)", "if (a = 1)"},
             {u"'a b'n is null", "if 'a b'n is null"},
             {u"a not in (1)", "if a not in (1)"},
             {u"a eq 1 2", "if a eq 1 and trailing text"},
             {u"index(a, 'b') > 0", "if index(a, 'b') > 0"},
             {u"keep = 1", "if keep = 1"},
             {u"keep in", "keep in"},
             {u"where a=1", "where a = 1"},
             {u"a", "unknown command"},
             {u"foo(a)", "unknown command"},
             {u"5 = a", "command must start with identifier"}}) {
        EXPECT_EQ(outcome(text, BareCondition::IsIf), expected);
    }
    EXPECT_EQ(outcome(u"a=1", BareCondition::IsWhere), "where a = 1");
}

TEST(CommandParser, explainsWhatIsWrong)
{
    check({{u"", "command must start with identifier"},
           {u"clff", "unknown command"},
           {u"clear 'library' filter", "clear must follow library|dataset"},
           {u"clear dataset 5", "expect 'filter'"},
           {u"keep", "expect variable name"},
           {u"tables * a", "table needs variable(s)"},
           {u"table a * 5", "expect variable"},
           {u"where a = -1", "unknown character in input"}});
}

}  // namespace
