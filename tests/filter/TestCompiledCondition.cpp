#include "data/readers/DatasetFile.h"
#include "tests/filter/Selecting.h"
#include "tests/support/RFiles.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <utility>

namespace {

using Rows = std::vector<int>;

TEST(CompiledCondition, refusesTypesThatDoNotMatch)
{
    ScriptedDataset dataset;
    dataset.variable("AGE", TypeCode::Double).variable("SEX", TypeCode::Character);
    for (const char* condition :
         {"AGE = ''", "SEX = 1", "SEX = '01JAN2020'd", "AGE in (1, 'a')", "SEX in ('a', 1)",
          "AGE contains 'a'", "AGE contains 6", "SEX contains 1", "SEX contains .", "SEX = .",
          "SEX in ('a', .)", "index(AGE, 'a') > 0", "index(SEX, 'a') = 'b'",
          "index(SEX, '01JAN2020'd) > 0", "index(SEX, 'a') contains 1",
          "AGE > 60 and (SEX = 'F' or SEX = 5)"}) {
        EXPECT_EQ(refusal(dataset, condition), "The variable types do not match.") << condition;
    }
}

TEST(CompiledCondition, namesWhatIsWrong)
{
    FormattedDataset dataset(SourceKind::Stata);
    dataset.variable("AGE", TypeCode::Double).variable("tm", TypeCode::Int16, "%tm");
    const std::vector<std::pair<const char*, const char*>> table{
        {"AGE > 1 or \u00E4rger = 1", "There is no variable named \u00E4rger"},
        {"index(NAME, 'a') > 0", "There is no variable named NAME"},
        {"AGE > '31FEB2020'd", "'31FEB2020'd is not a valid date"},
        {"AGE in (1, \"24:60\"T)", "\"24:60\"T is not a valid time"},
        {"AGE = '01JAN2020'dt", "'01JAN2020'dt is not a valid date-time"},
        {"AGE < 1e999", "The number 1e999 is out of range"},
        {"AGE = 1 x", "unexpected trailing text"},
        {"tm = '01JAN2020'd",
         "tm does not count days or seconds and cannot be compared with a date or time"},
    };
    for (const auto& [condition, error] : table) {
        EXPECT_EQ(refusal(dataset, condition), error);
    }
}

TEST(CompiledCondition, tellsWhereItIsWrongAndWhatWasMeant)
{
    ScriptedDataset dataset;
    dataset.variable("AGE", TypeCode::Double).variable("Sepal.Length", TypeCode::Double);
    dataset.variable("SEX", TypeCode::Character).variable("X", TypeCode::Double);
    struct Row
    {
        const char16_t* text;
        qsizetype position;
        const char* suggestion;
    };
    for (const Row& row : std::vector<Row>{{u"X = 1 and  AEG > 5", 11, "AGE"},
                                           {u"sepallength = 1", 0, "'Sepal.Length'n"},
                                           {u"SITE = 1", 0, ""},
                                           {u"Y = 1", 0, ""},
                                           {u"AGE in (1, 'x')", 11, ""},
                                           {u"index(AGE, 'x') > 1", 6, ""},
                                           {u"AGE > '31FEB2020'd", 6, ""},
                                           {u"AGE > 1e999", 6, ""},
                                           {u"AGE >", 5, ""},
                                           {u"AGE > 1 2", 8, ""},
                                           {u"AGE > #", 6, ""},
                                           {u"AGE in (1, 'x", 11, ""}}) {
        try {
            static_cast<void>(CompiledCondition(row.text, dataset));
            ADD_FAILURE() << QStringView(row.text).toString().toStdString();
        } catch (const ParseError& error) {
            EXPECT_EQ(error.position(), row.position) << error.what();
            EXPECT_EQ(error.suggestion(), row.suggestion) << error.what();
        }
    }
}

TEST(CompiledCondition, findsNamesInAnyLetterCase)
{
    ScriptedDataset dataset(SourceKind::R);
    dataset.variable("Gr\u00F6\u00DFe", TypeCode::Double)
        .variable("\u0416", TypeCode::Double)
        .variable("age", TypeCode::Double)
        .variable("Age", TypeCode::Double)
        .row({2.0, 3.0, 4.0, 5.0});
    EXPECT_EQ(selected(dataset, "GR\u00D6\u00DFE = 2"), Rows{1});
    EXPECT_EQ(selected(dataset, "\u0436 = 3"), Rows{1});
    EXPECT_EQ(selected(dataset, "Age = 5"), Rows{1}) << "the same letters come first";
    EXPECT_EQ(selected(dataset, "AGE = 4"), Rows{1}) << "else the first";
}

TEST(CompiledCondition, findsTheVariablesOfRByName)
{
    const TemporaryFolder folder;
    const auto path = folder.file("types.rds");
    std::ofstream(path, std::ios::binary) << rfiles::bytesOf(rfiles::types);
    const auto opened = openDataset(QString::fromStdString(path.string()));
    ASSERT_TRUE(opened.ok());
    const StatDataset& dataset = *opened.value().dataset;
    const std::pair<const char*, std::vector<int>> cases[] = {
        {"DBL = 1.5", {1}},
        {"int is null", {2}},
        {"int < 0", {2, 3}},
        {"txt is null", {2, 3}},
        {"fct = 'high'", {3}},
        {"lgl = 1", {1}},
        {"dat = '03JAN2014'd", {1}},
        {"dtm > '01JAN2000:00:00:00'dt", {3}},
        {"dati ge '08JAN2022'd", {3}},
    };
    for (const auto& [condition, rows] : cases) {
        EXPECT_EQ(selected(dataset, condition), rows) << condition;
    }
}

}  // namespace
