#include "analysis/panels/FreqTableView.h"
#include "app/docks/SidePanels.h"
#include "tests/support/WindowFixture.h"

#include <QDirIterator>
#include <QPointer>

#include <algorithm>
#include <functional>
#include <random>
#include <ranges>
#include <set>

/// Random sequences over a window of several datasets, with all that it shows compared with what is
/// in force after every step.
class TestWindowSequences : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void windowShowsWhatIsInForce_data();
    void windowShowsWhatIsInForce();

private:
    void findFiles();
    void fileStep();
    void datasetStep();
    void boxStep();
    void libraryFilterStep();
    void panelStep();
    void lookStep();
    void changeGrid(MainTableView& grid);
    void check();
    void checkNoneOpen();
    void checkActive();
    void checkCell();
    void checkGrids() const;
    [[nodiscard]] int random(int count) { return int(m_random() % unsigned(count)); }
    [[nodiscard]] QString oneOf(const QStringList& texts)
    {
        return texts[random(int(texts.size()))];
    }
    [[nodiscard]] DatasetWindow& anyDataset()
    {
        const auto file = std::next(m_open.begin(), random(int(m_open.size())));
        return *qobject_cast<DatasetWindow*>(window->openFiles().find(*file));
    }

    std::mt19937 m_random;
    QStringList m_files;
    // What ought to be in force
    std::set<QString> m_open;
    bool m_wasOneOpen = false;
    QString m_libraryFilter;
    HeaderMode m_headers = HeaderMode::VariableNames;
    int m_letters = 0;
};

void TestWindowSequences::windowShowsWhatIsInForce_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<bool>("areFiles");
    for (const unsigned seed : {1U, 2U, 3U, 4U, 5U, 6U}) {
        QTest::addRow("%u", seed) << seed << false;
    }
    QTest::newRow("thirty files") << 7U << true;
}

void TestWindowSequences::windowShowsWhatIsInForce()
{
    QFETCH(unsigned, seed);
    QFETCH(bool, areFiles);
    m_random.seed(seed);
    m_open.clear();
    m_wasOneOpen = false;
    m_libraryFilter.clear();
    m_headers = HeaderMode::VariableNames;
    m_letters = 0;
    m_files = {path("dm1"), path("dm2"), path("ts1"), path("a&b[*].x"), path("ts2"), path("bad")};
    if (areFiles) {
        if (qEnvironmentVariableIsEmpty("QUORLANE_TEST_DATA")) {
            QSKIP("QUORLANE_TEST_DATA names no folder");
        }
        findFiles();
        openWindow(true);
    }
    const std::vector<std::function<void()>> steps{
        [this] { fileStep(); },  [this] { datasetStep(); }, [this] { changeGrid(view()); },
        [this] { panelStep(); }, [this] { boxStep(); },     [this] { libraryFilterStep(); },
        [this] { lookStep(); },
    };
    constexpr int count = 250;
    for (int i = 0; i < count; ++i) {
        // Many files are all opened before anything else is done to them.
        const int step = areFiles && i < 30 ? 0 : random(int(steps.size()));
        if (step < 1 || step > 3 || !m_open.empty()) {
            steps[std::size_t(step)]();
        }
        (void)log->take();  // refused commands and programs are logged
        check();
        if (QTest::currentTestFailed()) {
            QFAIL(qPrintable(QString("step %1, of kind %2").arg(i).arg(step)));
        }
        if (random(2) == 0) {  // what is closed may go late
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    const QPointer<MainTableView> last = window->activeView();
    window.reset();
    QVERIFY(last.isNull());
}

/// Some of the real files, in random order.
void TestWindowSequences::findFiles()
{
    constexpr int wanted = 36;
    constexpr qint64 largest = 500'000;
    m_files.clear();
    QDirIterator walk(qEnvironmentVariable("QUORLANE_TEST_DATA"),
                      {"*.sas7bdat", "*.xpt", "*.sav", "*.dta"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const auto names = datasetNames(walk.filePath());
        if (walk.fileInfo().size() < largest && !(names && names.value().size() > 1)) {
            m_files << QDir::cleanPath(walk.filePath());
        }
    }
    m_files.sort();
    std::shuffle(m_files.begin(), m_files.end(), m_random);
    m_files = m_files.mid(0, wanted);
}

/// Opens a file, or one that is open anew.
void TestWindowSequences::fileStep()
{
    const QString file = oneOf(m_files);
    const bool wasOpen = m_open.contains(file);
    script.confirmation = random(2) == 0;
    const bool isOpen = window->openDatasetFile(file);
    const QString told = notes().join('\n');
    QCOMPARE(told.contains("confirm|Reload Dataset"), wasOpen);
    QCOMPARE(told.contains("warn|Open File"), !isOpen);
    QVERIFY(isOpen || !wasOpen);
    if (isOpen) {
        m_open.insert(file);
        m_wasOneOpen = true;
        QCOMPARE(active()->fileKey(), file);
        QVERIFY(view().hasFocus());
    }
}

/// Goes to another dataset, closes some, reads one anew, moves a tab, or changes one that is not in
/// front.
void TestWindowSequences::datasetStep()
{
    DatasetWindow& dataset = random(2) == 0 ? *active() : anyDataset();
    const int choice = random(13);
    if (choice == 0) {
        m_open.clear();
        trigger("actionCloseAll");
    } else if (choice < 3) {
        const bool isOther = &dataset != active();
        m_open.erase(dataset.fileKey());
        dataset.close();
        QVERIFY(m_open.empty() || isOther || view().hasFocus());
    } else if (choice < 5) {
        trigger("actionNextDataset");
        QVERIFY(view().hasFocus());
    } else if (choice < 7) {
        const bool isOther = &dataset != active();
        area().setActiveSubWindow(&dataset);
        QVERIFY(view().hasFocus() || !isOther);
    } else if (choice == 7) {
        trigger("actionReload");
        QVERIFY(view().hasFocus());
    } else if (choice < 10) {
        const int count = int(m_open.size());
        area().findChild<QTabBar*>()->moveTab(random(count), random(count));
    } else {
        changeGrid(*dataset.view());
    }
}

void TestWindowSequences::changeGrid(MainTableView& grid)
{
    const int rows = grid.model()->rowCount();
    const int columns = grid.model()->columnCount();
    if (rows == 0 || columns == 0) {
        return;
    }
    grid.setCurrentIndex(grid.model()->index(random(rows), random(columns)));
    using enum GridCommand;
    constexpr std::array commands{FilterAgain,     FilterLess,        HideVariable,
                                  UnhideVariables, UndoDatasetFilter, LibraryFilter,
                                  AddByVariable,   ClearByVariables,  ClearLibraryFilter,
                                  Univariate,      ShiftRight,        Frequency};
    if (random(2) == 0) {
        grid.selectColumn(random(columns));
    }
    grid.run(commands[std::size_t(random(int(commands.size())))]);
    grid.onHeaderClicked(random(columns));
    notes();  // a second library filter, no selected column
    m_libraryFilter = grid.opened()->libraryFilterText();
}

/// Goes to a view beside the grid by the key that fills it, does something there, and goes back or
/// stays.
void TestWindowSequences::panelStep()
{
    changeGrid(view());
    using enum GridCommand;
    const GridCommand command =
        std::array{Frequency, FrequencyOfSubjects, GoToVariable}[std::size_t(random(3))];
    view().run(command);
    if (!view().isCurrentVariableShown()) {
        return;
    }
    const GridPanels& panels = view().panels();
    const bool isList = command != GoToVariable;
    QWidget* table = panels.variables();
    if (isList) {
        table = &panels.frequency()->table();
    }
    QVERIFY(table->hasFocus());
    QTest::keyClick(table,
                    isList ? std::array{Qt::Key_D, Qt::Key_L, Qt::Key_Z}[std::size_t(random(3))]
                           : Qt::Key_Space);
    notes();  // a second library filter
    m_libraryFilter = view().opened()->libraryFilterText();
    if (random(2) == 0) {
        QTest::keyClick(table, Qt::Key_Escape);
        QVERIFY(view().hasFocus());
    }
}

void TestWindowSequences::boxStep()
{
    const QString box = oneOf({"comboBoxDf", "comboBoxBy"});
    const QString line = box == "comboBoxBy"
        ? oneOf({"SEX", "by age SEX", " ", "NOSUCH", "TSPARM"})
        : oneOf({"if AGE > 35", "if SEX='F'", "", "if AGE >", "keep AGE", "drop AGE", "cdf"});
    const int choice = m_open.empty() ? 0 : random(4);
    if (choice < 2) {
        submit(box, line);
        if (!told().isEmpty()) {
            QCOMPARE(boxText(box), line);
        } else if (!m_open.empty() && line == "by age SEX") {
            QCOMPARE(view().opened()->byVariables(), (std::vector<std::string>{"AGE", "SEX"}));
        } else if (!m_open.empty() && line.trimmed().isEmpty()) {
            QCOMPARE(status().at(box == "comboBoxBy" ? 2 : 4).right(4), ": NA");
        }
        QTest::keyClick(child<QComboBox>(box)->lineEdit(), Qt::Key_Escape);
        QVERIFY(m_open.empty() || view().hasFocus());
    } else if (choice == 2) {
        script.dataFilter = oneOf({"AGE > 35", "SEX = 'M'", "", "AGE >"});
        trigger("actionEditDataFilter");
    } else {
        if (child<QPlainTextEdit>("programEditor") == nullptr) {
            trigger("actionNewSasProgram");
        }
        child<QPlainTextEdit>("programEditor")
            ->setPlainText(oneOf({"if AGE > -1; keep AGE;", "by SEX; drop SEX; x;"}));
        trigger("actionSubmit");
    }
    notes();
}

void TestWindowSequences::libraryFilterStep()
{
    const QString line = oneOf({"where SEX = 'F'", "where AGE > 30", "where AGE > -1", "clf", " "});
    submit("comboBoxLf", line);
    const bool isRefused = !told().isEmpty();
    if (line == "clf" || line == " ") {
        QVERIFY(!isRefused);
        m_libraryFilter.clear();
    } else if (!isRefused) {
        QVERIFY(m_libraryFilter.isEmpty() || m_libraryFilter == line);
        m_libraryFilter = line;
    } else {
        QCOMPARE(boxText("comboBoxLf"), line);
        QTest::keyClick(child<QComboBox>("comboBoxLf")->lineEdit(), Qt::Key_Escape);
    }
}

void TestWindowSequences::lookStep()
{
    const int choice = random(4);
    if (choice == 0) {
        trigger("actionToggleDarkMode");
    } else if (choice == 1 && !m_open.empty()) {
        m_letters = view().fontSize() + 1;
        view().run(GridCommand::LargerFont);
    } else {
        const bool areLabels = random(2) == 0;
        m_headers = areLabels ? HeaderMode::VariableLabels : HeaderMode::VariableNames;
        window->findChildren<QRadioButton*>().at(areLabels ? 1 : 0)->click();
    }
}

void TestWindowSequences::check()
{
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QCOMPARE(window->openFiles().size(), m_open.size());
    QCOMPARE(area().isVisible(), !m_open.empty());
    for (const char* action : {"actionClose", "actionCloseAll", "actionSubmit",
                               "actionEditDataFilter", "actionNextDataset"}) {
        QCOMPARE(child<QAction>(action)->isEnabled(), !m_open.empty());
    }
    QCOMPARE(boxText("comboBoxLf"), m_libraryFilter);
    checkGrids();
    m_open.empty() ? checkNoneOpen() : checkActive();
}

void TestWindowSequences::checkNoneOpen()
{
    QVERIFY(window->activeView() == nullptr);
    QCOMPARE(
        status(),
        QStringList({m_wasOneOpen ? "Rows: NA / NA" : "Rows: NA/NA", "Vars: NA/NA", "By: NA",
                     "LF: " + (m_libraryFilter.isEmpty() ? "NA" : m_libraryFilter), "DF: NA"}));
    QCOMPARE(boxText("comboBoxBy") + boxText("comboBoxDf"), "");
    QCOMPARE(child<QLabel>("labelStatusBarCell")->text(), "");
    QCOMPARE(child<QPlainTextEdit>("cellText")->toPlainText(), "");
    QCOMPARE(child<QTableView>("rowTable")->model()->rowCount(), 0);
    if (m_wasOneOpen) {
        QCOMPARE(dock("Variables")->windowTitle(), "Variable");
        QCOMPARE(dock("Freq")->windowTitle(), "Freq");
        QCOMPARE(dock("Desc")->windowTitle(), "Univariate");
    }
}

void TestWindowSequences::checkActive()
{
    QVERIFY(window->activeView() != nullptr);
    QCOMPARE(window->activeView(), active()->view());
    const OpenDataset& opened = *view().opened();
    const auto shown = [](int count, const std::function<bool(int)>& isHidden) {
        const auto hidden = std::ranges::count_if(std::views::iota(0, count), isHidden);
        return QString("%1/%2").arg(count - hidden).arg(count);
    };
    const QString rowCounts =
        shown(view().model()->rowCount(), [this](int row) { return view().isRowHidden(row); });
    const QString variableCounts =
        shown(view().model()->columnCount(), [this](int it) { return view().isColumnHidden(it); });
    QStringList by;
    for (const std::string& name : opened.byVariables()) {
        by << QString::fromStdString(name);
    }
    const auto orNone = [](const QString& text) { return text.isEmpty() ? "NA" : text; };
    const QString notApplied = opened.libraryFilterProblem().isEmpty() ? "" : "(not applied) ";
    QCOMPARE(
        status(),
        QStringList({"Rows: " + rowCounts, "Vars: " + variableCounts, "By: " + orNone(by.join(' ')),
                     "LF: " + notApplied + orNone(m_libraryFilter),
                     "DF: " + orNone(opened.datasetFilterText())}));
    QCOMPARE(rowCounts.section('/', 0, 0), QString::number(opened.selectedCount()));
    QCOMPARE(boxText("comboBoxDf"), opened.datasetFilterText());
    QCOMPARE(boxText("comboBoxBy"), by.join(' '));
    const QString toolTip = child<QLabel>("labelStatusBarLf")->toolTip();
    QCOMPARE(toolTip.isEmpty(), notApplied.isEmpty());
    QVERIFY(toolTip.contains(opened.libraryFilterProblem()));
    const std::string& own = active()->dataset()->header().tableName;
    QString name = own.empty() ? QFileInfo(active()->fileKey()).completeBaseName()
                               : QString::fromStdString(own);
    name.replace('&', "&&").replace("[*]", "[*][*]");  // which would be signs of something else
    QCOMPARE(dock("Variables")->windowTitle(), "Variable - " + name);
    QCOMPARE(dock("Freq")->windowTitle(), "Freq - " + name);
    QCOMPARE(dock("Desc")->windowTitle(), "Univariate - " + name);
    const GridPanels& panels = view().panels();
    const auto panelIn = [this](const char* place) {
        const auto* panelPlace = qobject_cast<PanelPlace*>(dock(place)->widget());
        const auto* hint = panelPlace->findChild<QLabel*>("", Qt::FindDirectChildrenOnly);
        const bool isEmpty = panelPlace->panel() == nullptr;
        return hint->isHidden() == isEmpty ? hint : panelPlace->panel();
    };
    QCOMPARE(panelIn("Variables"), panels.variables());
    for (int variable = 0; variable < view().model()->columnCount(); ++variable) {
        const auto state = panels.variables()->model()->index(variable, 0).data(Qt::CheckStateRole);
        QCOMPARE(state.toInt() == Qt::Unchecked, view().isColumnHidden(variable));
    }
    QCOMPARE(panelIn("Freq"), panels.frequency()->hasList() ? panels.frequency() : nullptr);
    QCOMPARE(panelIn("Desc"),
             panels.statistics()->table() == nullptr ? nullptr : panels.statistics());
    checkCell();
}

/// What is told of the current cell, which is none while no row is shown.
void TestWindowSequences::checkCell()
{
    const QModelIndex current = view().currentIndex();
    const QString summary = child<QLabel>("labelStatusBarCell")->text();
    const QString whole = child<QPlainTextEdit>("cellText")->toPlainText();
    const QTableView& row = *child<QTableView>("rowTable");
    QString listed;
    for (int i = 0; i < row.model()->rowCount(); ++i) {
        for (int column : {0, 2}) {
            listed += row.model()->index(i, column).data().toString() + '\n';
        }
    }
    QString shown;
    for (int place = 0; current.isValid() && place < view().model()->columnCount(); ++place) {
        const int variable = view().horizontalHeader()->logicalIndex(place);
        if (!view().isColumnHidden(variable)) {
            shown += view().opened()->nameOf(variable) + '\n'
                + view().model()->index(current.row(), variable).data().toString() + '\n';
        }
    }
    QCOMPARE(listed, shown);
    if (!current.isValid() || view().isColumnHidden(current.column())) {
        QCOMPARE(summary + whole, "");
        return;
    }
    QVERIFY(summary.startsWith(view().opened()->nameOf(current.column()) + "  "));
    QCOMPARE(whole.section('\n', 0, 0), current.data().toString().section('\n', 0, 0));
    QCOMPARE(row.currentIndex().siblingAtColumn(2).data().toString(), current.data().toString());
}

void TestWindowSequences::checkGrids() const
{
    for (const QString& file : m_open) {
        const auto* shown = qobject_cast<DatasetWindow*>(window->openFiles().find(file));
        QVERIFY(shown != nullptr);
        QCOMPARE(shown->fileKey(), file);
        const MainTableView* grid = shown->view();
        QCOMPARE(grid->opened()->libraryFilterText(), m_libraryFilter);
        QCOMPARE(grid->tableModel()->headerMode(), m_headers);
        for (const QWidget* lettered :
             {static_cast<const QWidget*>(grid),
              static_cast<const QWidget*>(grid->verticalHeader()),
              static_cast<const QWidget*>(grid->horizontalHeader()),
              static_cast<const QWidget*>(grid->horizontalHeader()->viewport())}) {
            QVERIFY(m_letters == 0 || QFontInfo(lettered->font()).pointSize() == m_letters);
        }
    }
}

QTEST_MAIN(TestWindowSequences)
#include "TestWindowSequences.moc"
