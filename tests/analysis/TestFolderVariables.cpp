#include "analysis/FolderVariables.h"
#include "data/readers/DatasetFolder.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using foldervariables::Attribute;
using foldervariables::Variable;

class FolderVariables : public testing::Test
{
protected:
    [[nodiscard]] static samples::Table table(const std::string& name,
                                              std::vector<samples::Column> columns)
    {
        samples::Table table;
        table.name = name;
        table.columns = std::move(columns);
        return table;
    }
    void write(const std::string& file, const samples::Table& table) const
    {
        samples::writeTable(m_folder.file(file), table);
    }
    [[nodiscard]] QString path(const std::string& file = {}) const
    {
        return QString::fromStdString(m_folder.file(file).string());
    }

    TemporaryFolder m_folder;
};

TEST_F(FolderVariables, datasetFilesAreListedByNameWithSizeAndTime)
{
    for (const char* name : {"b.XPT", "A.sas7bdat", "c.rda", "B.csv", "d.ndjson", "notes.txt",
                             "xpt", "e.xpt.bak", "a\xFF.dta"}) {
        std::ofstream(m_folder.file(name)) << "12345";
    }
    std::filesystem::create_directory(m_folder.file("folder.csv"));
    std::filesystem::create_symlink("nowhere", m_folder.file("broken.sav"));
    std::filesystem::create_symlink("B.csv", m_folder.file("link.sav"));
    const auto listed = datasetfolder::list(path());
    ASSERT_TRUE(listed.ok());
    std::vector<std::string> names;
    for (const datasetfolder::File& file : listed.value()) {
        names.push_back(filepath::toBytes(file.name()));
        EXPECT_EQ(file.state.size, 5);
        EXPECT_TRUE(file.state.lastModified.isValid());
    }
    EXPECT_EQ(names,
              std::vector<std::string>(
                  {"A.sas7bdat", "a\xFF.dta", "B.csv", "b.XPT", "c.rda", "d.ndjson", "link.sav"}));
    const auto absent = datasetfolder::list(path("absent"));
    ASSERT_FALSE(absent.ok());
    EXPECT_EQ(absent.error(),
              path("absent").toStdString()
                  + ": The folder cannot be listed: No such file or directory");
}

TEST_F(FolderVariables, variablesOfOneNameAreComparedAcrossDatasets)
{
    using samples::numberColumn;
    using samples::textColumn;
    write("dm.xpt",
          table("DM", {textColumn("ID", "Subject", 10), numberColumn("AGE", "Age", "F", 3, 0)}));
    write("ae.sas7bdat",
          table("AE",
                {textColumn("id", "Subject", 12), numberColumn("AGE", "Age", "F", 8, 1),
                 numberColumn("DAY", "Day", "DATE", 9)}));
    const samples::Table both[]{
        table("LB", {numberColumn("DAY", "Day of visit", "DATE", 9), textColumn("AGE", "Age", 8)}),
        table("VS", {numberColumn("WEIGHT", "")})};
    samples::writeTransport(m_folder.file("two.xpt"), both);
    std::ofstream(m_folder.file("bad.xpt")) << "no such thing";

    const auto contents = foldervariables::read(
        {path("dm.xpt"), path("bad.xpt"), path("ae.sas7bdat"), path("two.xpt")});
    EXPECT_EQ(contents.datasetCount, 4);
    ASSERT_EQ(contents.failures.size(), 1U);
    EXPECT_EQ(contents.failures[0].find("bad.xpt: "), 0U);
    std::vector<std::string> lines;
    for (const Variable& variable : contents.variables) {
        std::string line =
            variable.dataset + ' ' + std::to_string(variable.position) + ' ' + variable.name + ' ';
        for (const Attribute attribute :
             {Attribute::Type, Attribute::Length, Attribute::Format, Attribute::Label}) {
            line += variable.isDifferent(attribute) ? '!' : '-';
            line += variable.text(attribute);
        }
        lines.push_back(line + (variable.isDifferent() ? " *" : ""));
        const bool isOfTwo = variable.path == path("two.xpt");
        EXPECT_EQ(variable.member.toStdString(), isOfTwo ? variable.dataset : "");
    }
    EXPECT_EQ(lines,
              std::vector<std::string>({
                  "DM 1 ID -Character!10--Subject *",
                  "DM 2 AGE !Numeric-8!F3.-Age *",
                  "AE 1 id -Character!12--Subject *",
                  "AE 2 AGE !Numeric-8!F8.1-Age *",
                  "AE 3 DAY -Numeric-8-DATE9.!Day *",
                  "LB 1 DAY -Numeric-8-DATE9.!Day of visit *",
                  "LB 2 AGE !Character-8!-Age *",
                  "VS 1 WEIGHT -Numeric-8--",
              }));
    EXPECT_EQ(foldervariables::valuesOf(contents, contents.variables[1], Attribute::Type),
              "Numeric: DM, AE\nCharacter: LB");
}

}  // namespace
