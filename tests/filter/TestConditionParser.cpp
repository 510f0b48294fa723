#include "grid/filter/ConditionParser.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace {

/// The tree with each junction in brackets: "[or a = 1 [and b = 2 c = 3]]".
std::string shape(const Condition& condition)
{
    struct Visitor
    {
        std::string operator()(const CompareTerm& term) const
        {
            return (term.variable + u'=' + term.value.text).toStdString();
        }
        std::string operator()(const IndexTerm& term) const
        {
            return "index:" + term.variable.toStdString() + term.needle.text.toStdString();
        }
        std::string operator()(const InTerm& term) const
        {
            return (term.negated ? "notin:" : "in:") + std::to_string(term.values.size());
        }
        std::string operator()(const NullTerm& term) const
        {
            return (term.negated ? "notnull:" : "null:") + term.variable.toStdString();
        }
        std::string operator()(const Junction& junction) const
        {
            std::string text = junction.isAnd ? "[and" : "[or";
            for (const Condition& operand : junction.operands) {
                text += ' ' + shape(operand);
            }
            return text + ']';
        }
    };
    return std::visit(Visitor(), condition.node);
}

std::string errorOf(QStringView text)
{
    try {
        return "none, but " + ConditionParser::parseAll(text).text.toStdString();
    } catch (const ParseError& error) {
        return error.what();
    }
}

struct Normalised
{
    const char* name;
    const char16_t* typed;
    const char16_t* text;
    const char* shape;
};

std::ostream& operator<<(std::ostream& stream, const Normalised& row)
{
    return stream << row.name;
}

class NormalisedCondition : public testing::TestWithParam<Normalised>
{ };

TEST_P(NormalisedCondition, isReadAsWrittenAndReadsBackToItself)
{
    const ParsedCondition parsed = ConditionParser::parseAll(GetParam().typed);
    EXPECT_EQ(parsed.text.toStdString(), QStringView(GetParam().text).toString().toStdString());
    EXPECT_EQ(shape(parsed.tree), GetParam().shape);

    const ParsedCondition again = ConditionParser::parseAll(parsed.text);
    EXPECT_EQ(again.text.toStdString(), parsed.text.toStdString());
    EXPECT_EQ(shape(again.tree), GetParam().shape);
    EXPECT_EQ(again.hasOuterOr, parsed.hasOuterOr);
}

const std::vector<Normalised> normalised{
    {"Blanks", u"  a=1", u"a = 1", "a=1"},
    {"SymbolsBecomeWords", u"a=1|b=2&c=3", u"a = 1 or b = 2 and c = 3", "[or a=1 [and b=2 c=3]]"},
    {"WordsLowered", u"a = 1 OR b = 2 And c = 3", u"a = 1 or b = 2 and c = 3",
     "[or a=1 [and b=2 c=3]]"},
    {"LeftToRight", u"a=1 and b=2 and c=3 or d=4", u"a = 1 and b = 2 and c = 3 or d = 4",
     "[or [and a=1 b=2 c=3] d=4]"},
    {"Parentheses", u"( ( a=1|b=2 ) )&c=3", u"((a = 1 or b = 2)) and c = 3",
     "[and [or a=1 b=2] c=3]"},
    {"InList", u"a = 1 and (b IN(\"x\",'y'))", u"a = 1 and (b IN (\"x\", 'y'))", "[and a=1 in:2]"},
    {"NotIn", u"b Not In (1,.,-2)", u"b Not In (1, ., -2)", "notin:3"},
    {"Null", u"a is null or a IS NOT NULL", u"a is null or a IS NOT NULL", "[or null:a notnull:a]"},
    {"NullWords", u"a isnull&b IsNotNull", u"a isnull and b IsNotNull", "[and null:a notnull:b]"},
    {"Index", u"INDEX( a ,'x')>0", u"INDEX(a, 'x') > 0", "index:a'x'"},
    {"IndexIsAVariable", u"index=1 and index in (1)", u"index = 1 and index in (1)",
     "[and index=1 in:1]"},
    {"WordOperators", u"a GT 1&b Contains'x'", u"a GT 1 and b Contains 'x'", "[and a=1 b='x']"},
    {"KeywordsAsVariables", u"or=1 or not in(1) or is=2", u"or = 1 or not in (1) or is = 2",
     "[or or=1 in:1 is=2]"},
    {"LiteralsAsTheyStand", u"a>='01Jan2020'D and b=\"  (\"", u"a >= '01Jan2020'D and b = \"  (\"",
     "[and a='01Jan2020'D b=\"  (\"]"},
    {"Signed", u"a=-1.5e-3 or b>+.5", u"a = -1.5e-3 or b > +.5", "[or a=-1.5e-3 b=+.5]"},
    {"SuffixBeforeWord", u"a='x'dand b=1", u"a = 'x'd and b = 1", "[and a='x'd b=1]"},
};

INSTANTIATE_TEST_SUITE_P(Conditions, NormalisedCondition, testing::ValuesIn(normalised),
                         [](const auto& row) { return row.param.name; });

TEST(ConditionParser, tellsAnOrOutsideAllParentheses)
{
    EXPECT_TRUE(ConditionParser::parseAll(u"a=1 and b=2 or c=3").hasOuterOr);
    EXPECT_FALSE(ConditionParser::parseAll(u"(a=1 or b=2)").hasOuterOr);
    EXPECT_FALSE(ConditionParser::parseAll(u"(a=1 or b=2) and c=3").hasOuterOr);
    EXPECT_TRUE(ConditionParser::parseAll(u"(a=1 or b=2) | c=3").hasOuterOr);
}

TEST(ConditionParser, explainsWhatIsWrong)
{
    const std::vector<std::pair<const char16_t*, const char*>> table{
        {u"", "expect variable name or a function"},
        {u"5 = a", "expect variable name or a function"},
        {u"a = 1 and", "expect variable name or a function"},
        {u"a = 1 or or", "expect operator"},
        {u"not a = 1", "expect operator"},
        {u"()", "expect variable name or a function"},
        {u"(a = 1", "expect ')'"},
        {u"(a = 1 or (b = 2)", "expect ')'"},
        {u"a", "expect operator"},
        {u"a 5", "expect operator"},
        {u"a foo 5", "expect operator"},
        {u"a 'eq' 5", "expect operator"},
        {u"a not 5", "expect operator"},
        {u"a = ", "expect value"},
        {u"a = b", "expect value"},
        {u"a <> 1", "expect value"},
        {u"a = (1)", "expect value"},
        {u"a in 1", "expect '(' after in"},
        {u"a not in", "expect '(' after in"},
        {u"a in ()", "expect value"},
        {u"a in (1,)", "expect value"},
        {u"a in (1 2)", "expect ')'"},
        {u"a in (1, 2", "expect ')'"},
        {u"a is", "expect null"},
        {u"a is not", "expect null"},
        {u"a is missing", "expect null"},
        {u"index('x', 'y') > 0", "expect variable name"},
        {u"index(a 'y') > 0", "expect ','"},
        {u"index(a, b) > 0", "expect string literal"},
        {u"index(a, 5) > 0", "expect string literal"},
        {u"index(a, 'y' > 0", "expect ')'"},
        {u"index(a, 'y')", "expect operator"},
        {u"index(a, 'y') in (1)", "expect operator"},
        {u"index(a, 'y') > x", "expect value"},
        {u"a = 1 b = 2", "unexpected trailing text"},
        {u"a = 1)", "unexpected trailing text"},
        {u"a = 1 #", "unknown character in input"},
        {u"a = 'x", "unterminated string literal"},
    };
    for (const auto& [text, error] : table) {
        EXPECT_EQ(errorOf(text), error) << QStringView(text).toString().toStdString();
    }
}

TEST(ConditionParser, refusesNestingThatWouldUseUpTheStack)
{
    const auto nested = [](qsizetype depth) {
        return QString(depth, u'(') + QStringLiteral("a = 1") + QString(depth, u')');
    };
    EXPECT_EQ(ConditionParser::parseAll(nested(500)).text, nested(500));
    EXPECT_EQ(errorOf(nested(501)), "too many parentheses");
    EXPECT_EQ(errorOf(QString(1'000'000, u'(')), "too many parentheses");
}

TEST(ConditionParser, readsAnythingOrSaysWhyNot)
{
    // Random pieces: whatever is read must read back to itself.
    const std::vector<QString> pieces{
        QStringLiteral("a"),       QStringLiteral("index"), QStringLiteral("in"),
        QStringLiteral("not"),     QStringLiteral("is"),    QStringLiteral("null"),
        QStringLiteral("isnull"),  QStringLiteral("and"),   QStringLiteral("or"),
        QStringLiteral("("),       QStringLiteral(")"),     QStringLiteral(","),
        QStringLiteral("|"),       QStringLiteral("="),     QStringLiteral("<="),
        QStringLiteral("ne"),      QStringLiteral("1"),     QStringLiteral("-2e3"),
        QStringLiteral("'x'"),     QStringLiteral("\"y\""), QStringLiteral("a = 1"),
        QStringLiteral("b in (1"), QStringLiteral("d"),     QStringLiteral(".")};
    std::mt19937 random(20240501);
    int read = 0;
    for (int i = 0; i < 100'000; ++i) {
        QString text;
        for (unsigned n = random() % 9; n > 0; --n) {
            text += pieces[random() % pieces.size()] + QString(random() % 3 > 0 ? 1 : 0, u' ');
        }
        try {
            const ParsedCondition parsed = ConditionParser::parseAll(text);
            const ParsedCondition again = ConditionParser::parseAll(parsed.text);
            ASSERT_EQ(again.text, parsed.text) << text.toStdString();
            ASSERT_EQ(shape(again.tree), shape(parsed.tree)) << text.toStdString();
            ++read;
        } catch (const ParseError&) {
            continue;
        }
    }
    EXPECT_GT(read, 500) << "the pieces hardly ever make a condition";
}

}  // namespace
