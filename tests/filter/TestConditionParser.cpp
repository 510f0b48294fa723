#include "grid/filter/ConditionParser.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

/// The text that is written, or why there is none.
std::string outcome(QStringView text)
{
    try {
        return ConditionParser::parseAll(text).text.toStdString();
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

TEST(ConditionParser, writesWhatItReads)
{
    check({
        {u"  a=1|b=2&c=3", "a = 1 or b = 2 and c = 3"},
        {u"( ( a=1|b=2 ) )&c=3", "((a = 1 or b = 2)) and c = 3"},
        {u"b IN(\"x\",'y')&b Not In (1,.,-2)", "b IN (\"x\", 'y') and b Not In (1, ., -2)"},
        {u"a IS NOT NULL&b IsNotNull", "a IS NOT NULL and b IsNotNull"},
        {u"INDEX( a ,'x')>0", "INDEX(a, 'x') > 0"},
        {u"index=1 and index in (1)", "index = 1 and index in (1)"},
        {u"a GT 1&b Contains'x'", "a GT 1 and b Contains 'x'"},
        {u"or=1 or not in(1) or is=2", "or = 1 or not in (1) or is = 2"},
        {u"a>='01Jan2020'D&b=\"  (\"", "a >= '01Jan2020'D and b = \"  (\""},
        {u"a='x'dand b=\"it's\"dtor c=''", "a = 'x'd and b = \"it's\"dt or c = ''"},
        {u"gr\u00F6\u00DFe~=1e5\u00A0&\t\u0416_1^=-.5E-07",
         "gr\u00F6\u00DFe ~= 1e5 and \u0416_1 ^= -.5E-07"},
        {u"'Sepal.Length'n>=5&\"it's\"N In(1)&index('a''b'n,'c')=1",
         "'Sepal.Length'n >= 5 and \"it's\"N In (1) and index('a''b'n, 'c') = 1"},
        {u"\U0001D4B3x<=2e+10&e\u0301t=+5.", "\U0001D4B3x <= 2e+10 and e\u0301t = +5."},
    });
}

TEST(ConditionParser, tellsAnOrOutsideAllParentheses)
{
    EXPECT_TRUE(ConditionParser::parseAll(u"a=1 and b=2 or c=3").hasOuterOr);
    EXPECT_FALSE(ConditionParser::parseAll(u"(a=1 or b=2)").hasOuterOr);
    EXPECT_FALSE(ConditionParser::parseAll(u"(a=1 or b=2) and c=3").hasOuterOr);
    EXPECT_TRUE(ConditionParser::parseAll(u"(a=1 or b=2) | c=3").hasOuterOr);
}

TEST(ConditionParser, explainsWhatIsWrong)
{
    check({
        {u"", "expect variable name or a function"},
        {u"a = 1 and", "expect variable name or a function"},
        {u"not a = 1", "expect operator"},
        {u"(a = 1", "expect ')'"},
        {u"(a = 1 or (b = 2)", "expect ')'"},
        {u"a 5", "expect operator"},
        {u"a foo 5", "expect operator"},
        {u"a 'eq' 5", "expect operator"},
        {u"a 'eq'n 5", "expect operator"},
        {u"a not 5", "expect operator"},
        {u"a = ", "expect value"},
        {u"a <> 1", "expect value"},
        {u"a in 1", "expect '(' after in"},
        {u"a not in", "expect '(' after in"},
        {u"a in (1,)", "expect value"},
        {u"a in (1 2)", "expect ')'"},
        {u"a is missing", "expect null"},
        {u"index('x', 'y') > 0", "expect variable name"},
        {u"index(a 'y') > 0", "expect ','"},
        {u"index(a, b) > 0", "expect string literal"},
        {u"index(a, 'y' > 0", "expect ')'"},
        {u"index(a, 'y')", "expect operator"},
        {u"index(a, 'y') > x", "expect value"},
        {u"a = 1 b = 2", "unexpected trailing text"},
        {u"a = 1.2.3", "unexpected trailing text"},
        {u"a = 1e", "unexpected trailing text"},
        {u"a = .e5", "unexpected trailing text"},
        {u"a = 1e5.5", "unexpected trailing text"},
        {u"a = 'b''c'", "unexpected trailing text"},
        {u"a = 'b'dx", "unexpected trailing text"},
        {u"a = -.", "unknown character in input"},
        {u"a ~ 1", "unknown character in input"},
        {u"a = 1 #", "unknown character in input"},
        {u"a = 'it''s", "unterminated string literal"},
    });
}

TEST(ConditionParser, refusesNestingThatWouldUseUpTheStack)
{
    const auto nested = [](qsizetype depth) {
        return QString(depth, u'(') + QStringLiteral("a = 1") + QString(depth, u')');
    };
    EXPECT_EQ(ConditionParser::parseAll(nested(500)).text, nested(500));
    EXPECT_EQ(outcome(nested(501)), "too many parentheses");
    EXPECT_EQ(outcome(QString(1'000'000, u'(')), "too many parentheses");
}

}  // namespace
