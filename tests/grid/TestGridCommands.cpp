#include "data/values/MissingTag.h"
#include "grid/filter/ParseError.h"
#include "grid/GridContextMenu.h"
#include "tests/support/GridFixture.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QTableWidget>

class TestGridCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { QCOMPARE(m_grid->close(), QStringList()); }
    void contextMenuHasItsEntriesInOrder();
    void headerMenuActsOnTheHeadersVariable();
    void copyTakesWhatIsShownInScreenOrder();
    void copyOfStoredValuesHasAllTheirDigits();
    void goToVariableLeavesHiddenOnesHidden();
    void typedCommandsActOrThrow();
    void byListIsClearedAndTakesKnownNamesOnly();
    void frequencyOfSeveralVariablesComesInScreenOrder();
    void statisticsStayUntilOthersAreMade();
    void waitCursorIsShownWhileRowsAreSelected();

private:
    [[nodiscard]] QString copy(bool includeNames) const
    {
        view().run(includeNames ? GridCommand::CopyWithNames : GridCommand::Copy);
        return QGuiApplication::clipboard()->text();
    }
    [[nodiscard]] MainTableView& view() const { return *m_grid->view; }

    std::unique_ptr<GridFixture> m_grid;
};

void TestGridCommands::init()
{
    m_grid.reset();
    m_grid = std::make_unique<GridFixture>();
}

void TestGridCommands::contextMenuHasItsEntriesInOrder()
{
    m_grid->datasets.uniqueVarName = "SUBJ&ID";
    view().show();
    m_grid->goTo(0, GridFixture::Sex);
    view().showContextMenu(QPoint(10, 10));
    const auto* menu = view().findChild<GridContextMenu*>();
    QVERIFY(menu != nullptr && menu->isVisible());
    menu->actions().first()->trigger();
    QCOMPARE(m_grid->columns(), "USUBJID AGE SITE");

    QStringList entries;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator()) {
            entries << action->text();
        }
    }
    const QString expected = "Hide Variable\tH|Unhide Variables\tU|Shift Variable Left\tAlt+Left|"
                             "Shift Variable Right\tAlt+Right|Go to Variable\tG|"
                             "Add By Variable\tB|Clear By Variable|Clear Library Filter\tAlt+C|"
                             "Clear Dataset Filter\tC|Undo Dataset Filter\tZ|Frequency\tF|"
                             "Frequency (SUBJ&&ID)\tN|Univariate\tS|Copy|Copy (include Var Name)";
    QCOMPARE(entries.join('|'), expected);
}

void TestGridCommands::headerMenuActsOnTheHeadersVariable()
{
    view().show();
    m_grid->goTo(3, GridFixture::Usubjid);
    QHeaderView* header = view().horizontalHeader();
    emit header->customContextMenuRequested(
        QPoint(header->sectionViewportPosition(GridFixture::Age) + 2, 2));
    QVERIFY(view().findChild<GridContextMenu*>() != nullptr);
    QCOMPARE(view().currentVariable(), int(GridFixture::Age));
    QCOMPARE(m_grid->currentNumber(), 4);
}

void TestGridCommands::copyTakesWhatIsShownInScreenOrder()
{
    QGuiApplication::clipboard()->setText("before");
    view().copyColHeader();
    QCOMPARE(copy(true), "before");  // nothing is selected
    view().cmdRunCommand("if AGE >= 47");
    view().cmdRunCommand("drop SITE");
    m_grid->goTo(1, GridFixture::Age);
    view().shiftVariableLeft();
    view().onHeaderClicked(GridFixture::Usubjid);
    view().selectAll();
    QCOMPARE(copy(false), "S2\t51\tM\nS2\t51\tF\nS4\t47\t");

    // Cells between selected ones are left blank.
    view().cmdRunCommand("cdf");
    m_grid->goTo(0, GridFixture::Usubjid);
    m_grid->select(4, GridFixture::Sex);
    QCOMPARE(copy(true), "USUBJID\tSEX\nS1\t\n\tF");
    view().copyColHeader();
    QCOMPARE(QGuiApplication::clipboard()->text(), "USUBJID\tSEX");
    view().clearSelection();
    view().copyColHeader();
    QCOMPARE(QGuiApplication::clipboard()->text(), "USUBJID");
}

void TestGridCommands::copyOfStoredValuesHasAllTheirDigits()
{
    m_grid = std::make_unique<GridFixture>([](ScriptedDataset& dataset) {
        dataset.variable("T", TypeCode::Character).variable("N", TypeCode::Double);
        dataset.row({"a\tb", 1.0 / 3}).row({"", missingtag::number('B')}).row({"c", 1e15});
    });
    m_grid->goTo(0, 1);
    view().onHeaderClicked(1);  // 2 1 3
    view().selectAll();
    view().run(GridCommand::CopyStoredValues);
    QCOMPARE(QGuiApplication::clipboard()->text(), "\t.B\na b\t0.3333333333333333\nc\t1e+15");
}

void TestGridCommands::goToVariableLeavesHiddenOnesHidden()
{
    m_grid->goTo(2, GridFixture::Usubjid);
    view().cmdRunCommand("drop SEX");
    view().cmdGotoVariable(GridFixture::Site);
    for (const int variable : {int(GridFixture::Sex), 4, -1}) {
        view().cmdGotoVariable(variable);
    }
    QCOMPARE(m_grid->notes.take(), QStringList("message|The variable SEX is hidden."));
    QCOMPARE(view().currentVariable(), int(GridFixture::Site));
    QCOMPARE(m_grid->currentNumber(), 3);
}

void TestGridCommands::typedCommandsActOrThrow()
{
    for (const char* command : {"if AGE = 34 | AGE = 51", "where sex = 'F'", "keep site Sex"}) {
        view().cmdRunCommand(command);
        QCOMPARE(view().lastCommand(), command);
    }
    QCOMPARE(m_grid->shown(), "1 6");
    QCOMPARE(m_grid->columns(), "SEX SITE");
    const auto caught = [this](const char* command) {
        try {
            view().cmdRunCommand(command);
        } catch (const ParseError& error) {
            return view().lastCommand() + ": " + error.what();
        }
        return QString();
    };
    QCOMPARE(caught("filter AGE"), "filter AGE: unknown command");
    QCOMPARE(caught("drop SEX RACE"), "drop SEX RACE: There is no variable named RACE");
}

void TestGridCommands::byListIsClearedAndTakesKnownNamesOnly()
{
    QSignalSpy added(&view(), &MainTableView::signalAddByVar);
    view().cmdAddByVar("age");
    view().cmdAddByVar("RACE");
    QCOMPARE(m_grid->log.take(),
             std::string("warning: Warning: there is no variable named RACE\n"));
    view().run(GridCommand::ClearByVariables);
    QVERIFY(m_grid->opened().byVariables().empty());
    QCOMPARE(added.count(), 2);
    QCOMPARE(added.at(0).at(0).toString(), "AGE");
    QCOMPARE(added.at(1).at(0).toString(), "");
}

void TestGridCommands::frequencyOfSeveralVariablesComesInScreenOrder()
{
    QSignalSpy results(&view(), &MainTableView::signalSetFrequency);
    m_grid->goTo(0, GridFixture::Age);
    view().shiftVariableLeft();
    view().selectAll();
    view().cmdRunCommand("drop USUBJID SITE");
    view().cmdRunCommand("if AGE ^= 47");
    view().run(GridCommand::Frequency);
    const QVariantList told = results.at(0);
    QCOMPARE(told.at(1).value<std::vector<int>>(),
             std::vector<int>({GridFixture::Age, GridFixture::Sex}));
    QCOMPARE(told.at(0).value<std::vector<WordsAndCounts>*>()->size(), std::size_t{5});
    QCOMPARE(told.at(2).value<StatDataset*>(), &m_grid->dataset);
}

void TestGridCommands::statisticsStayUntilOthersAreMade()
{
    QSignalSpy docks(&view(), &MainTableView::signalShowDockDesc);
    const auto told = [this] {
        view().run(GridCommand::Univariate);
        return m_grid->notes.take().join('\n');
    };
    QCOMPARE(told(), "inform|Descriptive Statistics|Please select at least one column.");
    view().refreshDescDock();
    QCOMPARE(docks.count(), 0);
    view().cmdRunCommand("if AGE > 34");  // 51 47 51
    m_grid->goTo(1, GridFixture::Age);
    QCOMPARE(told(), "");

    m_grid->select(1, GridFixture::Sex);  // which stands before AGE
    QCOMPARE(told(), "inform|Desciptive Stattistics|Selected variable is not numeric.");
    m_grid->goTo(1, GridFixture::Age);
    view().cmdRunCommand("where AGE > 100");  // a single cell of it is as good as all
    QCOMPARE(told(), "inform|Desciptive Stattistics|No data available under current filters.");
    QCOMPARE(docks.count(), 1);
    view().refreshDescDock();
    const auto* table = docks.at(1).at(0).value<QTableWidget*>();
    QCOMPARE(table->horizontalHeaderItem(0)->text(), "AGE");
    QCOMPARE(table->item(1, 1)->text(), "49.6667");
}

void TestGridCommands::waitCursorIsShownWhileRowsAreSelected()
{
    int waited = 0;
    connect(&view(), &MainTableView::signalObsNo, this, [&] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        waited += cursor != nullptr && cursor->shape() == Qt::WaitCursor ? 1 : 0;
    });
    m_grid->goTo(0, GridFixture::Age);
    view().cmdRunCommand("if AGE = 34");
    using enum GridCommand;
    for (const GridCommand command : {FilterAgain, FilterIn, LibraryFilter, UndoDatasetFilter,
                                      ClearLibraryFilter, ClearDatasetFilter}) {
        view().run(command);
    }
    view().onHeaderClicked(GridFixture::Age);
    QCOMPARE(waited, 8);
}

QTEST_MAIN(TestGridCommands)
#include "TestGridCommands.moc"
