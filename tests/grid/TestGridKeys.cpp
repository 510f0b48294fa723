#include "grid/GridCommands.h"
#include "tests/support/GridFixture.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QSignalSpy>

class TestGridKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void quickFilterByKey_data();
    void quickFilterByKey();
    void equalsKeyKeepsTheOperatorSetBefore();
    void inFilterTakesTheSelectedCellsOfTheCurrentColumn();
    void datasetFilterIsUndoneAndCleared();
    void libraryFilterKeySetsOneLevelOnly();
    void columnKeys();
    void keysThatAskForAnotherWindow();
    void byKeyListsEachVariableOnce();
    void copyKeyCopiesWithoutNames();
    void fontKeysStopBelowSix();
    void lettersThatAreNoCommandSearchNothing();
    void everyShortcutActsOnTheGridAlone();
    void containsFilterHasNoKey();
    void clickedHeaderIsTheVariableOfTheKeys();
    void keysDoNothingWithoutCells();

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        // Not keyClick(), which knows no accents.
        QTest::sendKeyEvent(QTest::Click, m_grid->view.get(), key, QString(), modifiers);
    }

    std::unique_ptr<GridFixture> m_grid;
};

void TestGridKeys::init()
{
    m_grid = std::make_unique<GridFixture>();
    QVERIFY(m_grid->activate());
}

void TestGridKeys::cleanup()
{
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    const QString log = QString::fromStdString(m_grid->log.take());
    const QStringList notes = m_grid->notes.take();
    m_grid.reset();
    QCOMPARE(log, QString());
    QCOMPARE(notes, QStringList());
}

void TestGridKeys::quickFilterByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("variable");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("filter");
    const auto add = [](const char* name, int key, int modifiers, int row, int variable,
                        const char* shown, const char* filter) {
        QTest::newRow(name) << key << modifiers << row << variable << QString(shown)
                            << QString(filter);
    };
    using Fixture = GridFixture;
    const int none = Qt::NoModifier;
    add("d", Qt::Key_D, none, 0, Fixture::Age, "1 4", "if AGE = 34");
    add("=", Qt::Key_Equal, none, 1, Fixture::Age, "2 6", "if AGE = 51");
    add("= on a text", Qt::Key_Equal, none, 1, Fixture::Sex, "2 4", "if SEX = \"M\"");
    add("= on a blank text", Qt::Key_Equal, none, 4, Fixture::Sex, "5", "if SEX is null");
    add("= on a missing number", Qt::Key_Equal, none, 2, Fixture::Age, "3", "if AGE = .");
    add("^", Qt::Key_AsciiCircum, none, 0, Fixture::Age, "2 3 5 6", "if AGE ^= 34");
    add("^ as an accent", Qt::Key_Dead_Circumflex, none, 0, Fixture::Age, "2 3 5 6",
        "if AGE ^= 34");
    add("~", Qt::Key_AsciiTilde, none, 0, Fixture::Age, "2 3 5 6", "if AGE ^= 34");
    add("~ as an accent", Qt::Key_Dead_Tilde, none, 0, Fixture::Age, "2 3 5 6", "if AGE ^= 34");
    add(">", Qt::Key_Greater, none, 0, Fixture::Age, "2 5 6", "if AGE > 34");
    add("<", Qt::Key_Less, none, 0, Fixture::Age, "3", "if AGE < 34");
    add("Alt+>", Qt::Key_Greater, Qt::AltModifier, 0, Fixture::Age, "1 2 4 5 6", "if AGE >= 34");
    add("Alt+<", Qt::Key_Less, Qt::AltModifier, 0, Fixture::Age, "1 3 4", "if AGE <= 34");
    add("i on one cell", Qt::Key_I, none, 0, Fixture::Age, "1 4", "if AGE in (34)");
}

void TestGridKeys::quickFilterByKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, row);
    QFETCH(int, variable);
    QFETCH(QString, shown);
    QFETCH(QString, filter);
    QSignalSpy filters(m_grid->view.get(), &MainTableView::signalFilter);
    QSignalSpy rows(m_grid->view.get(), &MainTableView::signalObsNo);

    m_grid->goTo(row, variable);
    press(static_cast<Qt::Key>(key), static_cast<Qt::KeyboardModifiers>(modifiers));
    QCOMPARE(m_grid->shown(), shown);
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), filter);
    QCOMPARE(filters.takeLast().at(0).toString(), filter);
    QCOMPARE(rows.takeLast().at(0).toString(),
             QStringLiteral("Rows: %1/6").arg(shown.count(' ') + 1));
}

void TestGridKeys::equalsKeyKeepsTheOperatorSetBefore()
{
    m_grid->goTo(0, GridFixture::Age);
    press(Qt::Key_Greater);
    press(Qt::Key_C);
    m_grid->goTo(0, GridFixture::Age);
    press(Qt::Key_Equal);
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "if AGE > 34");
    press(Qt::Key_C);

    m_grid->goTo(0, GridFixture::Age);
    press(Qt::Key_L);  // has an operator of its own
    QCOMPARE(m_grid->view->opened()->libraryFilterText(), "where AGE = 34");
    press(Qt::Key_C, Qt::AltModifier);
    m_grid->goTo(0, GridFixture::Age);
    press(Qt::Key_D);
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "if AGE > 34");
}

void TestGridKeys::inFilterTakesTheSelectedCellsOfTheCurrentColumn()
{
    const auto select = [this](int row, int variable) {
        m_grid->view->selectionModel()->select(m_grid->view->model()->index(row, variable),
                                               QItemSelectionModel::Select);
    };
    m_grid->goTo(4, GridFixture::Age);
    select(1, GridFixture::Age);
    select(2, GridFixture::Age);
    select(5, GridFixture::Age);  // 51 again
    select(0, GridFixture::Sex);  // of another column
    press(Qt::Key_I);
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "if AGE in (51, ., 47)");
    QCOMPARE(m_grid->shown(), "2 3 5 6");

    // Cells that a filter has hidden stay out of the next list.
    press(Qt::Key_C);
    m_grid->view->cmdRunCommand("if SEX = 'M'");
    m_grid->view->selectAll();
    m_grid->goTo(3, GridFixture::Site);
    m_grid->view->selectionModel()->select(m_grid->view->model()->index(1, GridFixture::Site),
                                           QItemSelectionModel::Select);
    m_grid->view->selectionModel()->select(m_grid->view->model()->index(2, GridFixture::Site),
                                           QItemSelectionModel::Select);
    press(Qt::Key_I);
    QCOMPARE(m_grid->view->opened()->datasetFilterText(),
             "if SEX = 'M' and SITE in (\"X-2\", \"X-1\")");
}

void TestGridKeys::datasetFilterIsUndoneAndCleared()
{
    QSignalSpy rows(m_grid->view.get(), &MainTableView::signalObsNo);
    m_grid->goTo(0, GridFixture::Sex);
    press(Qt::Key_D);
    QCOMPARE(m_grid->shown(), "1 3 6");
    m_grid->goTo(5, GridFixture::Age);
    press(Qt::Key_D);
    QCOMPARE(m_grid->shown(), "6");
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "if SEX = \"F\" and AGE = 51");

    press(Qt::Key_Z);
    QCOMPARE(m_grid->shown(), "1 3 6");
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "if SEX = \"F\"");
    QTest::keySequence(m_grid->view.get(), QKeySequence(QKeySequence::Undo));
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "");
    const auto published = rows.count();
    press(Qt::Key_Z);  // with nothing left to undo
    QCOMPARE(rows.count(), published);

    press(Qt::Key_D);
    press(Qt::Key_Greater);
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: 0/6");
    press(Qt::Key_C);
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
    press(Qt::Key_Z);  // clearing is no step that could be undone
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
}

void TestGridKeys::libraryFilterKeySetsOneLevelOnly()
{
    QSignalSpy filters(m_grid->view.get(), &MainTableView::signalLibraryFilter);
    m_grid->goTo(1, GridFixture::Sex);
    press(Qt::Key_L);
    QCOMPARE(m_grid->shown(), "2 4");
    QCOMPARE(filters.takeLast().at(0).toString(), "where SEX = \"M\"");
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "");

    m_grid->goTo(1, GridFixture::Age);
    press(Qt::Key_L);
    QCOMPARE(m_grid->notes.take(),
             QStringList("error|Library Filter supports one level only. "
                         "Please clear library filter first.|where AGE = 51"));
    QCOMPARE(m_grid->shown(), "2 4");

    press(Qt::Key_D);
    QCOMPARE(m_grid->shown(), "2");
    press(Qt::Key_C, Qt::AltModifier);
    QCOMPARE(m_grid->shown(), "2 6");
    QCOMPARE(filters.takeLast().at(0).toString(), "");
}

void TestGridKeys::columnKeys()
{
    QSignalSpy variables(m_grid->view.get(), &MainTableView::signalVarNo);
    QSignalSpy changes(m_grid->view.get(), &MainTableView::signalVarHideUnhide);
    m_grid->goTo(2, GridFixture::Sex);
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), "USUBJID AGE SITE");
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: 3/4");
    QCOMPARE(m_grid->view->currentVariable(), int(GridFixture::Age));
    press(Qt::Key_Left, Qt::AltModifier);  // past the hidden column, too
    QCOMPARE(m_grid->columns(), "AGE USUBJID SITE");
    press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_grid->columns(), "AGE USUBJID SITE");
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_grid->columns(), "USUBJID SITE AGE");
    QCOMPARE(m_grid->currentNumber(), 3);

    press(Qt::Key_H);  // the last column: the one to its left becomes the current one
    QCOMPARE(m_grid->view->currentVariable(), int(GridFixture::Site));
    QCOMPARE(m_grid->view->opened()->variables().hidden(), std::vector<int>({1, 2}));
    press(Qt::Key_U);
    QCOMPARE(m_grid->columns(), "USUBJID SEX SITE AGE");
    QCOMPARE(m_grid->view->opened()->variables().order(), std::vector<int>({0, 1, 3, 2}));
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: 4/4");
    QCOMPARE(changes.count(), 3);

    m_grid->goTo(0, GridFixture::Usubjid);
    m_grid->view->selectionModel()->select(m_grid->view->model()->index(4, GridFixture::Age),
                                           QItemSelectionModel::Select);
    press(Qt::Key_H, Qt::AltModifier);
    QCOMPARE(m_grid->columns(), "SEX SITE");
    QCOMPARE(m_grid->view->currentVariable(), int(GridFixture::Sex));
    press(Qt::Key_H);
    press(Qt::Key_H);
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), "");
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: 0/4");
    press(Qt::Key_D);  // by a cell that nobody sees
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "");
    press(Qt::Key_U);
    QCOMPARE(m_grid->columns(), "USUBJID SEX SITE AGE");
}

void TestGridKeys::keysThatAskForAnotherWindow()
{
    QSignalSpy variables(m_grid->view.get(), &MainTableView::signalShowDockVar);
    QSignalSpy results(m_grid->view.get(), &MainTableView::signalSetFrequency);
    QSignalSpy docks(m_grid->view.get(), &MainTableView::signalShowDockFreq);
    QSignalSpy statistics(m_grid->view.get(), &MainTableView::signalShowDockDesc);
    m_grid->goTo(0, GridFixture::Age);
    press(Qt::Key_V);
    press(Qt::Key_G);
    QCOMPARE(variables.count(), 2);
    QCOMPARE(variables.at(0).at(0).toInt(), int(GridFixture::Age));
    QCOMPARE(variables.at(1).at(0).toInt(), int(GridFixture::Age));

    press(Qt::Key_F);
    press(Qt::Key_N);
    QCOMPARE(docks.count(), 2);
    QCOMPARE(results.at(0).at(1).value<std::vector<int>>(), std::vector<int>({2}));
    QCOMPARE(results.at(0).at(3).toBool(), false);
    QCOMPARE(results.at(1).at(3).toBool(), true);
    press(Qt::Key_S);
    QCOMPARE(statistics.count(), 1);
}

void TestGridKeys::byKeyListsEachVariableOnce()
{
    QSignalSpy added(m_grid->view.get(), &MainTableView::signalAddByVar);
    m_grid->goTo(0, GridFixture::Sex);
    press(Qt::Key_B);
    m_grid->goTo(0, GridFixture::Usubjid);
    press(Qt::Key_B);
    press(Qt::Key_B);
    QCOMPARE(m_grid->view->opened()->byVariables(), std::vector<std::string>({"SEX", "USUBJID"}));
    QCOMPARE(added.count(), 2);
    QCOMPARE(added.at(1).at(0).toString(), "USUBJID");
}

void TestGridKeys::copyKeyCopiesWithoutNames()
{
    m_grid->goTo(0, GridFixture::Sex);
    QTest::keySequence(m_grid->view.get(), QKeySequence(QKeySequence::Copy));
    QCOMPARE(QGuiApplication::clipboard()->text(), "F");
}

void TestGridKeys::fontKeysStopBelowSix()
{
    const auto size = [this] { return m_grid->view->font().pointSize(); };
    QFont font = m_grid->view->font();
    font.setPointSize(7);
    m_grid->view->setFont(font);
    const int rowHeight = m_grid->view->rowHeight(0);
    m_grid->view->cmdRunCommand("if AGE = 34");

    press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(size(), 8);
    press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(size(), 9);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    QCOMPARE(size(), 10);
    for (int i = 0; i < 12; ++i) {
        press(Qt::Key_Plus, Qt::ControlModifier);
    }
    QCOMPARE(m_grid->notes.take().last(), "font|22");
    QCOMPARE(m_grid->shown(), "1 4");
    m_grid->view->cmdRunCommand("cdf");
    QVERIFY(m_grid->view->rowHeight(0) > rowHeight);
    QCOMPARE(m_grid->view->rowHeight(1), m_grid->view->rowHeight(0));
    const int width = m_grid->view->columnWidth(GridFixture::Usubjid);
    for (int i = 0; i < 30; ++i) {
        press(Qt::Key_Minus, Qt::ControlModifier);
    }
    QCOMPARE(size(), 5);
    const QStringList told = m_grid->notes.take();
    QCOMPARE(told.last(), "font|5");
    QCOMPARE(told.count("font|5"), 1);
    QVERIFY(m_grid->view->columnWidth(GridFixture::Usubjid) < width);
}

void TestGridKeys::lettersThatAreNoCommandSearchNothing()
{
    m_grid->goTo(0, GridFixture::Site);
    press(Qt::Key_Y);
    QCOMPARE(m_grid->currentNumber(), 1);
}

void TestGridKeys::everyShortcutActsOnTheGridAlone()
{
    const auto shortcuts = m_grid->view->findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts) {
        QCOMPARE(shortcut->parent(), m_grid->view.get());
        QCOMPARE(shortcut->context(), Qt::WidgetShortcut);
    }

    QWidget window;
    QLineEdit box(&window);
    m_grid->view->setParent(&window);
    m_grid->goTo(0, GridFixture::Sex);
    window.show();
    box.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClicks(&box, "dhu>");
    QCOMPARE(box.text(), "dhu>");
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
    m_grid->view->setParent(nullptr);
}

void TestGridKeys::containsFilterHasNoKey()
{
    const auto keys = gridcommands::entryOf(GridCommand::FilterContains).allKeys();
    QCOMPARE(keys.size(), std::size_t{1});
    QCOMPARE(keys.front().sequences(), QList<QKeySequence>({QKeySequence()}));

    m_grid->goTo(2, GridFixture::Site);
    m_grid->view->run(GridCommand::FilterContains);
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "if index(SITE, \"Y-1\") > 0");
    QCOMPARE(m_grid->shown(), "3");
    m_grid->goTo(2, GridFixture::Age);
    m_grid->view->run(GridCommand::FilterContains);
    const QStringList notes = m_grid->notes.take();
    QCOMPARE(notes.size(), 1);
    QVERIFY2(notes.first().startsWith("error|"), qPrintable(notes.first()));
}

void TestGridKeys::clickedHeaderIsTheVariableOfTheKeys()
{
    QHeaderView* header = m_grid->view->horizontalHeader();
    m_grid->goTo(0, 0);
    // The column stands half outside, and must not be scrolled away from under the mouse.
    const int edge = header->sectionPosition(1) + header->sectionSize(1) / 2;
    m_grid->view->resize(edge + m_grid->view->verticalHeader()->width(), 300);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionPosition(1) + 8, 5));
    QCOMPARE(m_grid->view->currentVariable(), 1);
    QCOMPARE(m_grid->view->opened()->sortKeys().size(), std::size_t{1});
    const QString before = m_grid->columns();
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), before.section(' ', 0, 0) + ' ' + before.section(' ', 2));
}

void TestGridKeys::keysDoNothingWithoutCells()
{
    ScriptedDataset empty;
    empty.variable("A", TypeCode::Character).variable("B", TypeCode::Double);
    m_grid->view = m_grid->open(empty);
    QVERIFY(m_grid->activate());
    for (const auto& entry : gridcommands::table()) {
        if (entry.command != GridCommand::Univariate) {
            m_grid->view->run(entry.command);
        }
    }
    QCOMPARE(m_grid->columns(), "A B");
    QCOMPARE(m_grid->view->opened()->datasetFilterText(), "");
    QCOMPARE(m_grid->notes.take().filter(QRegularExpression("^(?!font)")), QStringList());

    m_grid->view->onHeaderClicked(1);  // which tells the variable where no cell can
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), "A");
    press(Qt::Key_U);
    m_grid->view.reset();

    MainTableView view(nullptr);
    for (const auto& entry : gridcommands::table()) {
        view.run(entry.command);
    }
    view.cmdRunCommand("if A = 1");
    QCOMPARE(view.currentVariable(), -1);
}

QTEST_MAIN(TestGridKeys)
#include "TestGridKeys.moc"
