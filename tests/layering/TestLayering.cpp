#include "tests/layering/IncludeRules.h"
#include "tests/layering/SourceTree.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

using includerules::Include;

namespace {

includerules::Checker checker()
{
    return includerules::Checker(sourcetree::split(QUORLANE_QT_CORE_FOLDERS));
}

struct Arrow
{
    const char* name;
    const char* file;
    Include include;
    bool allowed;
};

std::ostream& operator<<(std::ostream& stream, const Arrow& arrow)
{
    return stream << arrow.file << " -> " << arrow.include.path;
}

class IncludeRule : public testing::TestWithParam<Arrow>
{ };

Include quoted(const char* path)
{
    return {1, path, true};
}

Include bracketed(const char* path)
{
    return {1, path, false};
}

const std::vector<Arrow> arrows{
    {"DataItself", "data/Texts.cpp", quoted("data/Texts.h"), true},
    {"DataToGrid", "data/Texts.cpp", quoted("grid/MainTableModel.h"), false},
    {"DataToFilter", "data/Texts.cpp", quoted("grid/filter/Lexer.h"), false},
    {"DataToTests", "data/Texts.cpp", quoted("tests/data/DatasetBuilder.h"), false},
    {"DataToSibling", "data/Texts.cpp", quoted("Texts.h"), false},
    {"DataToParent", "data/Texts.cpp", quoted("../data/Texts.h"), false},
    {"FilterToData", "grid/filter/Lexer.cpp", quoted("data/StatDataset.h"), true},
    {"FilterToGrid", "grid/filter/Lexer.cpp", quoted("grid/MainTableModel.h"), false},
    {"AnalysisToFilter", "analysis/Find.cpp", quoted("grid/filter/Lexer.h"), true},
    {"AnalysisToGrid", "analysis/Find.cpp", quoted("grid/MainTableModel.h"), false},
    {"GridToAnalysis", "grid/MainTableView.cpp", quoted("analysis/GridCommands.h"), true},
    {"GridToWorkspace", "grid/MainTableView.cpp", quoted("workspace/Store.h"), false},
    {"WorkspaceToData", "workspace/Store.cpp", quoted("data/StatDataset.h"), true},
    {"WorkspaceToPlainValue", "workspace/Store.cpp", quoted("grid/ViewState.h"), true},
    {"WorkspaceToView", "workspace/Store.cpp", quoted("grid/MainTableView.h"), false},
    {"AnalysisToPlainValue", "analysis/Find.cpp", quoted("grid/ViewState.h"), false},
    {"AppToWorkspace", "app/MainWindow.cpp", quoted("workspace/Store.h"), true},
    {"AppToCli", "app/MainWindow.cpp", quoted("cli/Commands.h"), false},
    {"CliToAnalysis", "cli/main.cpp", quoted("analysis/Statistics.h"), true},
    {"CliToGrid", "cli/main.cpp", quoted("grid/MainTableModel.h"), false},
    {"SamplesToData", "samples/main.cpp", quoted("data/Texts.h"), false},
    {"BenchmarksToGrid", "benchmarks/Load.cpp", quoted("grid/MainTableView.h"), true},
    {"OursInBrackets", "data/Texts.cpp", bracketed("data/Texts.h"), false},
    {"MocFile", "grid/MainTableView.cpp", quoted("MainTableView.moc"), true},
    {"Standard", "data/Texts.cpp", bracketed("string"), true},
    {"Library", "data/Texts.cpp", bracketed("readstat.h"), true},
    {"QtCoreInData", "data/Texts.cpp", bracketed("QFile"), true},
    {"QtCoreByModule", "data/Texts.cpp", bracketed("QtCore/QFile"), true},
    {"QtGlobalInData", "data/Texts.cpp", bracketed("QtGlobal"), true},
    {"WidgetInData", "data/Texts.cpp", bracketed("QWidget"), false},
    {"WidgetByModule", "data/Texts.cpp", bracketed("QtWidgets/QWidget"), false},
    {"SqlInData", "data/Texts.cpp", bracketed("QSqlQuery"), false},
    {"GuiInFilter", "grid/filter/Lexer.cpp", bracketed("QColor"), false},
    {"WidgetInCli", "cli/main.cpp", bracketed("QApplication"), false},
    {"WidgetInGrid", "grid/MainTableView.cpp", bracketed("QTableView"), true},
};

TEST_P(IncludeRule, IsDecidedByTheFolders)
{
    const auto objection = checker().objection(GetParam().file, GetParam().include);

    EXPECT_EQ(!objection, GetParam().allowed) << objection.value_or("no objection");
}

INSTANTIATE_TEST_SUITE_P(Arrows, IncludeRule, testing::ValuesIn(arrows),
                         [](const auto& arrow) { return arrow.param.name; });

TEST(IncludeReader, FindsEveryFormOfTheDirectiveAndItsLine)
{
    const auto includes = includerules::includesOf("#pragma once\n"
                                                   "#include \"data/A.h\"\n"
                                                   "  #  include\t<QFile>  // why\n"
                                                   "#include\"data/B.h\"");

    ASSERT_EQ(includes.size(), 3U);
    EXPECT_EQ(includes[0].line, 2);
    EXPECT_EQ(includes[0].path, "data/A.h");
    EXPECT_TRUE(includes[0].quoted);
    EXPECT_EQ(includes[1].line, 3);
    EXPECT_EQ(includes[1].path, "QFile");
    EXPECT_FALSE(includes[1].quoted);
    EXPECT_EQ(includes[2].line, 4);
    EXPECT_EQ(includes[2].path, "data/B.h");
}

TEST(IncludeReader, PassesOverComments)
{
    const auto includes = includerules::includesOf("// #include \"data/A.h\"\n"
                                                   "/* #include \"data/B.h\"\n"
                                                   "#include \"data/C.h\"\n"
                                                   "*/\n"
                                                   "#include \"data/D.h\"\n"
                                                   "/* never closed\n"
                                                   "#include \"data/E.h\"\n");

    ASSERT_EQ(includes.size(), 1U);
    EXPECT_EQ(includes[0].path, "data/D.h");
    EXPECT_EQ(includes[0].line, 5);
}

TEST(SourceTree, HasNoForbiddenInclude)
{
    const auto check = checker();
    std::set<std::string> foldersSeen;
    for (const std::string& file : sourcetree::files({".h", ".cpp"})) {
        const auto folder = includerules::folderOf(file);
        if (!folder) {
            continue;
        }
        foldersSeen.insert(*folder);
        for (const Include& include : includerules::includesOf(sourcetree::contentOf(file))) {
            const auto objection = check.objection(file, include);
            EXPECT_FALSE(objection) << file << ':' << include.line << ": " << include.path << ": "
                                    << objection.value_or("");
        }
    }
    // A tree that is looked for in the wrong place has no forbidden includes either.
    EXPECT_TRUE(foldersSeen.contains("data") && foldersSeen.contains("app"));
}

}  // namespace
