#include "grid/opened/OpenDataset.h"
#include "grid/opened/OpenDatasets.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Six observations, and what their open dataset tells, in its order.
class Opened : public testing::Test
{
protected:
    Opened()
    {
        m_dataset.variable("USUBJID", TypeCode::Character).variable("SEX", TypeCode::Character);
        m_dataset.variable("AGE", TypeCode::Double).variable("SITE", TypeCode::Character);
        m_dataset.row({"S1", "F", 34.0, "X"}).row({"S2", "M", 51.0, "Y"});
        m_dataset.row({"S3", "F", 40.0, "Y"}).row({"S1", "M", 30.0, "X"});
        m_dataset.row({"S4", "F", 47.0, "Y"}).row({"S2", "F", 50.0, "X"});
        m_opened = std::make_unique<OpenDataset>(m_dataset, &m_shared);
        note(&OpenDataset::signalFiltersChanged, "filters");
        note(&OpenDataset::signalVariablesChanged, "variables");
        note(&OpenDataset::signalOrderChanged, "order");
        note(&OpenDataset::signalByListChanged, "by");
        note(&OpenDataset::signalRowsAboutToChange, "about");
        note(&OpenDataset::signalRowsChanged, "rows");
        note(&OpenDataset::signalSorted, "sorted");
    }

    template <typename Signal>
    void note(Signal signal, const char* name)
    {
        QObject::connect(m_opened.get(), signal,
                         [this, name] { m_told += std::string(name) + ' '; });
    }
    [[nodiscard]] std::string told() { return std::exchange(m_told, {}); }
    [[nodiscard]] std::string names(const std::vector<int>& variables) const
    {
        std::string text;
        for (const int variable : variables) {
            text += m_opened->nameOf(variable).toStdString() + ' ';
        }
        return text;
    }
    [[nodiscard]] std::string order() const { return names(m_opened->variables().order()); }
    [[nodiscard]] std::vector<std::uint32_t> rowMap() const
    {
        return {m_opened->rowMap().begin(), m_opened->rowMap().end()};
    }

    using Rows = std::vector<std::uint32_t>;
    enum Variable
    {
        Usubjid,
        Sex,
        Age,
        Site
    };
    OpenDatasets m_shared;
    ScriptedDataset m_dataset;
    std::unique_ptr<OpenDataset> m_opened;

private:
    std::string m_told;
};

TEST_F(Opened, hidesAndMovesVariables)
{
    ASSERT_FALSE(m_opened->run("drop sex SITE", Dialect::Command));
    EXPECT_EQ(told(), "variables ");
    EXPECT_EQ(names(m_opened->variables().hidden()), "SEX SITE ");
    // A hidden variable is no place to move to, and keeps its own.
    EXPECT_TRUE(m_opened->shiftVariable(Age, -1));
    EXPECT_EQ(order(), "AGE USUBJID SEX SITE ");
    EXPECT_FALSE(m_opened->shiftVariable(Age, -1));
    EXPECT_FALSE(m_opened->shiftVariable(Sex, 1));
    EXPECT_EQ(told(), "order ");
    EXPECT_EQ(m_opened->variables().neighbour(Age), Usubjid);
    EXPECT_EQ(m_opened->variables().neighbour(Usubjid), Age);

    ASSERT_FALSE(m_opened->run("keep SITE usubjid", Dialect::Command));
    EXPECT_EQ(names(m_opened->variables().hidden()), "SEX AGE ");
    EXPECT_EQ(m_opened->variables().shownCount(), 2);
    EXPECT_TRUE(m_opened->run("drop SITE RACE", Dialect::Command));
    EXPECT_TRUE(m_opened->variables().isShown(Site)) << "none is hidden when one is unknown";

    const std::vector<int> wanted{Site, Site, 9, Usubjid};
    m_opened->setVariableOrder(wanted);
    EXPECT_EQ(order(), "SITE USUBJID AGE SEX ");
    static_cast<void>(told());
    m_opened->setVariableOrder(wanted);
    EXPECT_EQ(told(), "") << "nothing has moved";
}

TEST_F(Opened, sortsItsRows)
{
    m_opened->sortBy({{Age, Qt::DescendingOrder}});
    EXPECT_EQ(rowMap(), Rows({1, 5, 4, 2, 0, 3}));
    EXPECT_EQ(told(), "about rows sorted ");
    m_opened->sortBy({{Age, Qt::DescendingOrder}});
    EXPECT_EQ(told(), "sorted ") << "no row has moved";
    m_opened->sortBy({});
    EXPECT_EQ(rowMap(), Rows({0, 1, 2, 3, 4, 5}));
    EXPECT_TRUE(m_opened->sortKeys().empty());
}

TEST_F(Opened, keepsAByListOfKnownVariables)
{
    EXPECT_FALSE(m_opened->setByVariables("by sex  SITE sex"));
    EXPECT_EQ(m_opened->byVariables(), std::vector<std::string>({"SEX", "SITE"}));
    EXPECT_EQ(told(), "by by ");
    const CommandOutcome refused = m_opened->setByVariables("AGE  'SITES'n");
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->position, 5);
    EXPECT_EQ(refused->suggestion, "SITE");
    EXPECT_FALSE(m_opened->addByVariable("RACE"));
    EXPECT_EQ(m_opened->byVariables().size(), 2U);
    EXPECT_FALSE(m_opened->setByVariables(""));
    EXPECT_TRUE(m_opened->byVariables().empty());
    static_cast<void>(told());
    m_opened->clearByVariables();
    EXPECT_EQ(told(), "");
}

TEST(OpenDataset, writesItsByListAsItCanBeTyped)
{
    ScriptedDataset dataset;
    for (const char* name : {"By", "A.B", "it's", "SEX"}) {
        dataset.variable(name, TypeCode::Double);
    }
    OpenDataset opened(dataset);
    ASSERT_FALSE(opened.setByVariables("by 'by'n'A.B'n \"it's\"n"));
    EXPECT_EQ(opened.byText(), "'By'n 'A.B'n \"it's\"n");
    EXPECT_FALSE(opened.setByVariables(opened.byText()));
    EXPECT_EQ(opened.byVariables(), std::vector<std::string>({"By", "A.B", "it's"}));
}

TEST_F(Opened, analysesTheRowsInForceWithoutAView)
{
    ASSERT_FALSE(m_opened->run("where AGE > 30", Dialect::Command));
    ASSERT_FALSE(m_opened->run("if AGE < 51", Dialect::Command));
    const std::vector<int> sex{Sex};
    const auto counts = m_opened->frequenciesOf(sex, false);
    ASSERT_EQ(counts.size(), 1U);
    EXPECT_EQ(counts.front().count, 4);

    m_shared.uniqueVarName = "site";
    EXPECT_EQ(m_opened->frequenciesOf(sex, true).front().count, 2);

    (void)m_opened->setByVariables("SITE");
    const auto table = std::get<statistics::Table>(m_opened->statisticsOf(std::vector{int{Age}}));
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.rows[0][0], "X");
    EXPECT_EQ(table.rows[0][2], "42");
    EXPECT_EQ(table.rows[1][2], "43.5");

    std::string asked;
    QObject::connect(m_opened.get(), &OpenDataset::signalFrequencyAsked,
                     [&](const std::vector<int>& variables, bool frequencyN) {
                         asked += names(variables) + (frequencyN ? "N" : "");
                     });
    ASSERT_FALSE(m_opened->run("tablen SEX*SITE", Dialect::Command));
    EXPECT_EQ(asked, "SEX SITE N");
}

TEST_F(Opened, stateIsBroughtBackToADatasetReadAnew)
{
    ASSERT_FALSE(m_opened->run("where SITE = 'X'", Dialect::Command));
    ASSERT_FALSE(m_opened->run("if AGE > 30", Dialect::Command));
    m_opened->setShown(std::vector{int{Sex}}, false);
    m_opened->shiftVariable(Site, -1);
    (void)m_opened->setByVariables("SEX");
    m_opened->sortBy({{Sex, Qt::AscendingOrder}, {Age, Qt::DescendingOrder}});
    const ViewState state = m_opened->state();
    EXPECT_EQ(state.hiddenVariables, std::vector<std::string>({"SEX"}));
    const Rows rows = rowMap();
    m_opened.reset();
    m_shared.libraryFilter.clear();
    m_dataset.visibleVariables().set();

    m_opened = std::make_unique<OpenDataset>(m_dataset, &m_shared);
    ASSERT_FALSE(m_opened->restore(state));
    EXPECT_EQ(m_opened->state(), state);
    EXPECT_EQ(m_opened->selectedCount(), 2U);
    EXPECT_EQ(rowMap(), rows);
    m_opened->undo();
    EXPECT_EQ(m_opened->selectedCount(), 3U) << "the library filter holds on";

    // What the dataset has no longer is left out, and a library filter in force stays.
    ViewState foreign = state;
    foreign.libraryFilter = "where RACE = 1";
    foreign.hiddenVariables = {"RACE", "AGE"};
    foreign.sortKeys = {{"RACE", Qt::AscendingOrder}};
    foreign.byVariables = {"RACE"};
    ASSERT_FALSE(m_opened->restore(foreign));
    EXPECT_EQ(names(m_opened->variables().hidden()), "AGE ");
    EXPECT_EQ(m_opened->libraryFilterText(), u"where SITE = 'X'"_s);
    EXPECT_TRUE(m_opened->sortKeys().empty());
    EXPECT_TRUE(m_opened->byVariables().empty());
}

TEST_F(Opened, tellsABatchOfVariablesOnce)
{
    {
        const OpenDataset::VariablesBatch outer(*m_opened);
        {
            const OpenDataset::VariablesBatch inner(*m_opened);
            m_opened->setShown({{0, 1}}, false);
        }
        m_opened->showAllVariables();
        EXPECT_EQ(told(), "");
    }
    EXPECT_EQ(told(), "variables ");
    {
        const OpenDataset::VariablesBatch nothing(*m_opened);
    }
    EXPECT_EQ(told(), "");
}

}  // namespace
