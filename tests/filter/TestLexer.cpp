#include "grid/filter/Lexer.h"
#include "grid/filter/ParseError.h"

#include <gtest/gtest.h>

#include <QString>

#include <ostream>
#include <string>
#include <vector>

namespace {

/// Kind and text of every token but the end: "0:age 3:> 2:60".
std::string lexed(QStringView text, Dialect dialect = Dialect::Command)
{
    Lexer lexer(text, dialect);
    std::string out;
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        out += (out.empty() ? "" : " ") + std::to_string(static_cast<int>(token.kind)) + ':'
            + token.text.toString().toStdString();
    }
    EXPECT_EQ(lexer.next().kind, TokenKind::End) << "the end repeats";
    return out;
}

struct Case
{
    const char* name;
    const char16_t* text;
    const char* tokens;
};

std::ostream& operator<<(std::ostream& stream, const Case& row)
{
    return stream << row.name;
}

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

class LexedCommand : public testing::TestWithParam<Case>
{ };

TEST_P(LexedCommand, hasTheseTokens)
{
    EXPECT_EQ(lexed(GetParam().text), GetParam().tokens);
}

const std::vector<Case> commands{
    {"Empty", u"", ""},
    {"WhiteSpaceOnly", u" \t\r\n\u00A0", ""},
    {"Comparison", u"age>60", "0:age 3:> 2:60"},
    {"IdentifierWithDigits", u"_x9 a_B", "0:_x9 0:a_B"},
    {"OtherAlphabets", u"größe Ж1", "0:größe 0:Ж1"},
    {"AccentOfItsOwn", u"e\u0301t=1", "0:e\u0301t 3:= 2:1"},
    {"LetterBeyondBmp", u"\U0001D4B3x=1", "0:\U0001D4B3x 3:= 2:1"},
    {"TwoPoints", u"1.2.3", "2:1.2 2:.3"},
    {"PointAlone", u". 5.", "2:. 2:5."},
    {"NumberThenLetters", u"1e5", "2:1 0:e5"},
    {"OperatorsInOrder", u"<=>=~=^=><=", "3:<= 3:>= 3:~= 3:^= 3:> 3:<="},
    {"LessGreater", u"x <> 1", "0:x 3:< 3:> 2:1"},
    {"WordOperatorsAreIdentifiers", u"contains LT", "0:contains 0:LT"},
    {"Symbols", u"(),*|&", "4:( 5:) 6:, 7:* 8:| 9:&"},
    {"SingleInDouble", u"\"it's\"", "1:\"it's\""},
    {"DoubleInSingle", u"'a \"b\"'", "1:'a \"b\"'"},
    {"EmptyString", u"''", "1:''"},
    {"NoEscape", u"'a''b'", "1:'a' 1:'b'"},
    {"DateSuffixes", u"'a'd 'b'T 'c'Dt", "1:'a'd 1:'b'T 1:'c'Dt"},
    {"SuffixOnlyDirectly", u"'a' d", "1:'a' 0:d"},
    {"SuffixThenLetters", u"\"a\"dx \"b\"date \"c\"dtt",
     "1:\"a\"d 0:x 1:\"b\"d 0:ate 1:\"c\"dt 0:t"},
    {"OtherLetterNoSuffix", u"'a'x", "1:'a' 0:x"},
};

INSTANTIATE_TEST_SUITE_P(Commands, LexedCommand, testing::ValuesIn(commands), nameOf);

class LexedFilterText : public testing::TestWithParam<Case>
{ };

TEST_P(LexedFilterText, hasTheseTokens)
{
    EXPECT_EQ(lexed(GetParam().text, Dialect::FilterText), GetParam().tokens);
}

const std::vector<Case> filterTexts{
    {"Signs", u"-1 +2.5 -.5", "2:-1 2:+2.5 2:-.5"},
    {"Exponents", u"1e5 1.5E-07 2e+10 .5e1", "2:1e5 2:1.5E-07 2:2e+10 2:.5e1"},
    {"ExponentWithoutDigits", u"1e 2ex", "2:1 0:e 2:2 0:ex"},
    {"PointTakesNoExponent", u".e5", "2:. 0:e5"},
    {"SignAfterOperator", u"x>-1", "0:x 3:> 2:-1"},
    {"ExponentEndsTheNumber", u"1e5.5", "2:1e5 2:.5"},
};

INSTANTIATE_TEST_SUITE_P(FilterTexts, LexedFilterText, testing::ValuesIn(filterTexts), nameOf);

std::string errorOf(QStringView text, Dialect dialect)
{
    try {
        return "none, but " + lexed(text, dialect);
    } catch (const ParseError& error) {
        return error.what();
    }
}

TEST(Lexer, refusesWhatIsNoToken)
{
    const std::string unknown = "unknown character in input";
    for (const QStringView text : {u"#", u"a # b", u"a - 1", u"+", u"~", u"^x", u"!", u"\u00B1"}) {
        EXPECT_EQ(errorOf(text, Dialect::Command), unknown) << text.toString().toStdString();
    }
    for (const QStringView text : {u"-", u"- 1", u"-.", u"+x", u"--1", u"2e+x"}) {
        EXPECT_EQ(errorOf(text, Dialect::FilterText), unknown) << text.toString().toStdString();
    }
    for (const QStringView text : {u"'", u"\"abc'", u"x = 'it''s"}) {
        EXPECT_EQ(errorOf(text, Dialect::Command), "unterminated string literal")
            << text.toString().toStdString();
    }
}

TEST(Lexer, givesViewsIntoTheText)
{
    const QString text = QStringLiteral("ab  cd");
    Lexer lexer(text);
    EXPECT_EQ(lexer.next().text.data(), QStringView(text).data());
    const Token second = lexer.next();
    EXPECT_EQ(second.text.data() - QStringView(text).data(), 4);
    EXPECT_EQ(second.text.size(), 2);
}

}  // namespace
