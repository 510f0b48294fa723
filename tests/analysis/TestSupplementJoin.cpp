#include "analysis/comparison/Comparison.h"
#include "analysis/Statistics.h"
#include "analysis/supplement/SupplementJoin.h"
#include "data/readers/DatasetFile.h"
#include "grid/filter/CompiledCondition.h"
#include "samples/TableWriter.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using supplement::Fault;
using supplement::Joined;
using Lines = std::vector<std::string>;
using Supp = std::unique_ptr<InMemoryDataset>;

constexpr double missing = ScriptedDataset::missing;

/// Observations of AE: subject 01 has three, of which two are of group G, and 02 has one.
std::unique_ptr<ScriptedDataset> events()
{
    auto dataset = std::make_unique<ScriptedDataset>();
    dataset->tableName("AE").variable("STUDYID", TypeCode::Character);
    dataset->variable("DOMAIN", TypeCode::Character).variable("USUBJID", TypeCode::Character);
    dataset->variable("AESEQ", TypeCode::Double).variable("AEGRPID", TypeCode::Character);
    dataset->variable("AEDOSE", TypeCode::Double);
    dataset->row({"S", "AE", "01", 1.0, "G", 0.1 + 0.2}).row({"S", "AE", "01", 2.0, "G", 0.3});
    dataset->row({"S", "AE", "01", 10.0, "", missing}).row({"S", "AE", "02", 1.0, " g", 2.5});
    return dataset;
}

/// Rows "RDOMAIN USUBJID IDVAR IDVARVAL QNAM QVAL", parted by commas.
Supp suppOf(const Lines& rows, const std::string& name = "SUPPAE",
            const std::string& subject = "USUBJID")
{
    InMemoryDatasetBuilder builder;
    builder.setTableName(name);
    for (const std::string& each :
         {std::string("STUDYID"), std::string("RDOMAIN"), subject, std::string("IDVAR"),
          std::string("IDVARVAL"), std::string("QNAM"), std::string("QVAL"), std::string("QLABEL"),
          std::string("QORIG")}) {
        builder.addVariable({.name = each, .type = TypeCode::Character});
    }
    for (std::string row : rows) {
        builder.addText("S");
        row += ',';
        std::string label;
        for (int i = 0; i < 6; ++i) {
            const std::size_t comma = row.find(',');
            const std::string text = row.substr(0, comma);
            builder.addText(text);
            label = i == 4 ? "Label of " + text : label;
            row.erase(0, comma + 1);
        }
        builder.addText(label).addText("CRF");
    }
    return builder.build();
}

Result<Joined> tryJoin(std::unique_ptr<StatDataset> parent, const std::vector<const Supp*>& supps)
{
    std::vector<supplement::Supplement> supplements;
    for (const Supp* supp : supps) {
        supplements.push_back({supp->get(), "supp.xpt"});
    }
    return supplement::join(std::move(parent), "ae.xpt", supplements);
}

Joined joinOf(const Lines& rows)
{
    const Supp supp = suppOf(rows);
    Result<Joined> joined = tryJoin(events(), {&supp});
    return joined ? std::move(joined.value()) : Joined{};
}

/// The shown cells of a variable, from top to bottom.
Lines cells(const Joined& joined, const std::wstring& name)
{
    Lines texts;
    const int variable = joined.dataset->findVariable(name);
    for (int row = 0; row < joined.dataset->observationCount(); ++row) {
        texts.push_back(joined.dataset->cellText(row, variable));
    }
    return texts;
}

Lines findings(const Joined& joined)
{
    Lines lines;
    for (const supplement::Finding& finding : joined.findings) {
        lines.push_back(supplement::lineOf(joined, finding));
    }
    return lines;
}

TEST(SupplementJoin, numericIdVariableMatchesHoweverTheNumberIsWritten)
{
    const Joined joined = joinOf({"AE,01,AESEQ,   1,X,a", "AE,01,aeseq,2.0,X,b",
                                  "AE,01,AESEQ,1E1,X,c", "AE,02,AESEQ,01,X,d"});
    EXPECT_EQ(cells(joined, L"X"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(findings(joined), Lines{});
}

TEST(SupplementJoin, fractionMatchesItsDigitsBeforeItsPrintedText)
{
    const Joined joined = joinOf({"AE,01,AEDOSE,0.3,X,exact", "AE,01,AEDOSE,0.30,Y,exact"});
    EXPECT_EQ(cells(joined, L"X"), (Lines{"", "exact", "", ""})) << "not 0.1 + 0.2";
    const Supp supp = suppOf({"AE,01,AEDOSE,0.3,X,printed"});
    auto parent = std::make_unique<ScriptedDataset>();
    parent->tableName("AE").variable("STUDYID", TypeCode::Character);
    parent->variable("DOMAIN", TypeCode::Character).variable("USUBJID", TypeCode::Character);
    parent->variable("AEDOSE", TypeCode::Double);
    parent->row({"S", "AE", "01", 0.1 + 0.2}).row({"S", "AE", "01", 0.31});
    EXPECT_EQ(cells(tryJoin(std::move(parent), {&supp}).value(), L"X"), (Lines{"printed", ""}));
}

TEST(SupplementJoin, textIdVariableIsNoNumberAndGroupsShareTheirValue)
{
    const Joined joined = joinOf({"AE,01,AEGRPID, G ,X,a", "AE,02,AEGRPID,g,X,b"});
    EXPECT_EQ(cells(joined, L"X"), (Lines{"a", "a", "", "b"})) << "letter case counts";
    const Joined without = joinOf({"AE,01,,,X,all"});
    EXPECT_EQ(cells(without, L"X"), (Lines{"all", "all", "all", ""})) << "all of the subject";
}

TEST(SupplementJoin, missingTextsOfRAreBlank)
{
    EXPECT_EQ(cells(joinOf({"AE,02,NA,NA,X,a"}), L"X"), (Lines{"", "", "", "a"})) << "in CSV";
    ScriptedDataset supp(SourceKind::R);
    supp.tableName("SUPPAE");
    for (const char* name :
         {"STUDYID", "RDOMAIN", "USUBJID", "IDVAR", "IDVARVAL", "QNAM", "QVAL"}) {
        supp.variable(name, TypeCode::Character);
    }
    supp.row({"S", "AE", "02", "N/A", "N/A", "X", "a"});
    supp.row({"S", "AE", "01", "N/A", "N/A", "X", "N/A"});
    const Joined joined =
        std::move(supplement::join(events(), "ae.xpt", {{&supp, "supp.rda"}}).value());
    EXPECT_EQ(cells(joined, L"X"), (Lines{"", "", "", "a"}));
    EXPECT_EQ(findings(joined), Lines{"SUPPAE row 2, 01 X=: QVAL is blank"});
}

TEST(SupplementJoin, severalIdVariablesMakeOneVariable)
{
    const Joined joined = joinOf(
        {"AE,01,AESEQ,1,X,a", "AE,01,AEGRPID,G,Y,y", "AE,02,AEGRPID,g,x,b", "AE,01,AESEQ,2,Y,y"});
    EXPECT_EQ(joined.dataset->variableCount(), 8);
    EXPECT_EQ(joined.dataset->names().at(6), "X");
    EXPECT_EQ(cells(joined, L"X"), (Lines{"a", "", "", "b"}));
    EXPECT_EQ(cells(joined, L"Y"), (Lines{"y", "y", "", ""}));
    EXPECT_EQ(findings(joined), Lines{}) << "the same value twice is no conflict";
    EXPECT_EQ(joined.dataset->labels().at(7), "Label of Y");
    EXPECT_EQ(joined.dataset->variableOrigin(7), "SUPPAE\nQORIG: CRF");
    EXPECT_EQ(joined.dataset->variableOrigin(5), "");
}

TEST(SupplementJoin, conflictingValuesAreAllShownAndListed)
{
    const Joined joined = joinOf({"AE,01,AESEQ,2,X,b", "AE,01,AEGRPID,G,X,g", "AE,01,AESEQ,2,X,b",
                                  "AE,01,AESEQ,2,X,c", "AE,01,AESEQ,2,X,g"});
    EXPECT_EQ(cells(joined, L"X"), (Lines{"g", "b | g | c", "", ""}));
    EXPECT_EQ(findings(joined),
              (Lines{"SUPPAE row 2, 01 AEGRPID=G X=g: Row 1 of SUPPAE has another value: b",
                     "SUPPAE row 4, 01 AESEQ=2 X=c: Row 1 of SUPPAE has another value: b",
                     "SUPPAE row 5, 01 AESEQ=2 X=g: Row 1 of SUPPAE has another value: b"}));
    EXPECT_EQ(joined.findings.at(0).observation, 1);
    EXPECT_EQ(joined.conflicts(), 3);
    EXPECT_EQ(joined.unmatched(), 0);
    EXPECT_EQ(joined.dataset->lengths().at(6), 9);
}

TEST(SupplementJoin, everyRowThatCannotBeJoinedIsListedWithItsReason)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"AE,01,AESEQ,3,X,a", "The subject has no observation with this AESEQ"},
        {"AE,03,AESEQ,1,X,a", "No observation belongs to this subject"},
        {"AE,03,,,X,a", "No observation belongs to this subject"},
        {"LB,01,LBSEQ,1,Z,a", "RDOMAIN is LB, which is not the domain of the observations"},
        {"AE,01,AESPID,1,X,a", "There is no variable named AESPID"},
        {"AE,01,AESEQ,one,X,a", "AESEQ is numeric, and IDVARVAL is no number"},
        {"AE,01,AESEQ,\"1,X,a", "AESEQ is numeric, and IDVARVAL is no number"},
        {"AE,01,AEGRPID, ,X,a", "IDVARVAL is blank"},
        {"AE,01,,1,X,a", "IDVARVAL has no IDVAR"},
        {"AE, ,,,X,a", "It names no subject"},
        {"AE,01,AESEQ,1, ,a", "QNAM is blank"},
        {"AE,01,AESEQ,1,X, ", "QVAL is blank"},
    };
    Lines written;
    for (const auto& [row, reason] : rows) {
        written.push_back(row);
    }
    const Joined joined = joinOf(written);
    ASSERT_EQ(joined.findings.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(joined.findings[i].row, static_cast<int>(i));
        EXPECT_EQ(supplement::sentenceOf(joined, joined.findings[i]), rows[i].second);
    }
    EXPECT_EQ(joined.joinedVariables, 1) << "X, which is empty, but no Z of another domain";
    EXPECT_EQ(cells(joined, L"X"), (Lines{"", "", "", ""}));
}

TEST(SupplementJoin, severalSupplementsOfOneParent)
{
    const Supp first = suppOf({"AE,01,AESEQ,1,X,a", "AE,02,AESEQ,1,X,b"}, "SUPPAE1");
    const Supp second = suppOf({"AE,01,AESEQ,1,X,z", "AE,01,AESEQ,2,Y,c"}, "SUPPAE2");
    const Joined joined = std::move(tryJoin(events(), {&first, &second}).value());
    EXPECT_EQ(joined.dataset->datasetName(), "AE + SUPPAE1 + SUPPAE2");
    EXPECT_EQ(cells(joined, L"X"), (Lines{"a | z", "", "", "b"}));
    EXPECT_EQ(cells(joined, L"Y"), (Lines{"", "c", "", ""}));
    EXPECT_EQ(findings(joined),
              (Lines{"SUPPAE2 row 1, 01 AESEQ=1 X=z: Row 1 of SUPPAE1 has another value: a"}));
}

TEST(SupplementJoin, parentVariablesAreNotOverwritten)
{
    const Joined joined = joinOf({"AE,01,AESEQ,1,aedose,high", "AE,01,AESEQ,1,AEDOSE_2,other"});
    EXPECT_EQ(joined.dataset->names().at(6), "aedose_3");
    EXPECT_EQ(cells(joined, L"AEDOSE_2"), (Lines{"other", "", "", ""}));
    EXPECT_EQ(joined.notes,
              (Lines{"SUPPAE: QNAM aedose is also a variable of AE; it is joined as aedose_3"}));
}

TEST(SupplementJoin, tellsWhatIsMissing)
{
    const auto errorOf = [](std::unique_ptr<StatDataset> parent, const Supp& supp) {
        return tryJoin(std::move(parent), {&supp}).error();
    };
    const auto parentOf = [](const Lines& names) {
        auto parent = std::make_unique<ScriptedDataset>();
        parent->tableName("AE");
        for (const std::string& name : names) {
            parent->variable(name, TypeCode::Character);
        }
        return parent;
    };
    const Supp supp = suppOf({"LB,01,,,X,a"});
    EXPECT_EQ(errorOf(parentOf({"USUBJID"}), supp),
              "AE: There is no variable named STUDYID, DOMAIN");
    EXPECT_EQ(errorOf(parentOf({"STUDYID", "DOMAIN"}), supp),
              "AE: It has neither USUBJID nor APID");
    EXPECT_EQ(errorOf(parentOf({"STUDYID", "DOMAIN", "APID", "USUBJID"}), supp),
              "AE: It has both USUBJID and APID; one of them is to name the subject");
    EXPECT_EQ(errorOf(events(), suppOf({"AE,01,,,X,a"}, "SUPPAE", "APID")),
              "AE: There is no variable named APID");
    EXPECT_EQ(errorOf(events(), supp), "SUPPAE: None of its rows belongs to AE; RDOMAIN is LB");
    EXPECT_EQ(errorOf(events(),
                      Supp(InMemoryDatasetBuilder()
                               .setTableName("AE")
                               .addVariable({.name = "QNAM", .type = TypeCode::Character})
                               .build())),
              "AE: It is no SUPP-- dataset, as it lacks STUDYID, RDOMAIN, IDVAR, IDVARVAL, QVAL");
}

TEST(SupplementJoin, missingNumbersAreTakenAsMissing)
{
    const Joined joined = joinOf({"AE,01,AESEQ,1,X,a"});
    const int dose = joined.dataset->findVariable(L"AEDOSE");
    EXPECT_EQ(joined.dataset->numericValue(2, dose), InMemoryDataset::missing);
    EXPECT_EQ(cells(joined, L"AEDOSE").at(2), ".");
    const auto selected = [&](const QString& condition) {
        BitVector mask(4);
        CompiledCondition(condition, *joined.dataset).select(mask.set());
        return mask.to_ulong();
    };
    EXPECT_EQ(selected("AEDOSE = ."), 0b0100U);
    EXPECT_EQ(selected("X is null"), 0b1110U);
    EXPECT_EQ(selected("X = 'a'"), 0b0001U);

    const std::vector<int> doses{dose};
    const auto described =
        std::get<statistics::Table>(statistics::describe(*joined.dataset, doses, {}));
    EXPECT_TRUE(std::ranges::any_of(described.rows, [](const Lines& row) {
        return row.front() == "Mean" && row.back() == "nan";
    }));
    const auto parent = events();
    const auto compared =
        comparison::Comparison::of(*parent, *joined.dataset, {.id = {"USUBJID", "AESEQ"}});
    ASSERT_TRUE(compared.ok()) << compared.error();
    EXPECT_EQ(compared.value().unequalValues(), 0U);
}

/// What a parent's values look like is its reader's to say, and stays so.
TEST(SupplementJoin, parentOfAFileLooksAsBefore)
{
    const TemporaryFolder folder;
    samples::Table table;
    table.name = "DM";
    table.columns = {samples::textColumn("STUDYID", "Study", 1),
                     samples::textColumn("DOMAIN", "Domain", 2),
                     samples::textColumn("USUBJID", "Subject", 2),
                     samples::numberColumn("BRTHDT", "Birth", "DATE", 9),
                     samples::numberColumn("WEIGHT", "Weight", "F", 8, 1)};
    table.rows = {{"S", "DM", "01", 0.0, 70.25}, {"S", "DM", "02", samples::missing, 8.0}};
    const auto file = folder.file("dm.xpt");
    samples::writeTable(file, table);
    const auto read = [&] {
        return std::move(openDataset(QString::fromStdString(file.string())).value().dataset);
    };
    const auto original = read();
    const Supp supp = suppOf({"DM,02,,,RACE1,ASIAN"}, "SUPPDM");
    const Joined joined = std::move(tryJoin(read(), {&supp}).value());
    EXPECT_EQ(cells(joined, L"BRTHDT"), (Lines{original->cellText(0, 3), "."}));
    EXPECT_EQ(cells(joined, L"WEIGHT"), (Lines{original->cellText(0, 4), "8.0"}));
    EXPECT_EQ(cells(joined, L"RACE1"), (Lines{"", "ASIAN"}));
    EXPECT_EQ(joined.dataset->writtenFormat(3), "DATE9.");
    BitVector mask(2);
    CompiledCondition(QStringLiteral("BRTHDT >= '01JAN1960'd"), *joined.dataset).select(mask.set());
    EXPECT_EQ(mask.to_ulong(), 1U);
}

}  // namespace
