#include "app/dialogs/FindDialog.h"
#include "app/dialogs/QuickOpenDialog.h"
#include "tests/support/WindowFixture.h"

#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>

/// The ways to a cell or dataset by what is typed: find and quick open.
class TestNavigation : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void findGoesFromHitToHitInTheGrid();
    void findSearchesAnyTable();
    void quickOpenListsDatasetsAndVariables();
    void quickOpenLeadsToCells();
    void variablesLeadBackToTheGrid();

private:
    /// Presses a key on the window and tells where the current cell is then.
    [[nodiscard]] QString cellAfter(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window.get(), key, modifiers);
        const QModelIndex current = view().currentIndex();
        return QString("%1 %2").arg(current.row()).arg(current.column());
    }
};

void TestNavigation::findGoesFromHitToHitInTheGrid()
{
    QVERIFY(!child<QAction>("actionFind")->isEnabled());
    open("dm");
    trigger("actionFindNext");  // asks for a text first
    auto* dialog = child<FindDialog>("");
    QVERIFY(dialog->isVisible());
    auto* text = dialog->findChild<QLineEdit*>();
    auto* status = dialog->findChild<QLabel*>();
    QTest::keyClicks(text, "f");
    QTest::keyClick(text, Qt::Key_Return);
    QCOMPARE(view().currentIndex(), view().model()->index(0, 0));
    dialog->close();
    QCOMPARE(cellAfter(Qt::Key_F3), "2 0");
    QCOMPARE(cellAfter(Qt::Key_F3), "0 0");
    QCOMPARE(cellAfter(Qt::Key_F3, Qt::ShiftModifier), "2 0");

    // By column, and of the rows as they stand: 50, 40, 30.
    view().onHeaderClicked(1);
    view().onHeaderClicked(1);
    submit("comboBoxDf", "if AGE ^= 40");
    trigger("actionFind");
    text->setText("0");
    dialog->findChildren<QRadioButton*>().at(1)->setChecked(true);
    dialog->close();
    trigger("actionFindNext");
    QVERIFY(!dialog->isVisible());
    trigger("actionFindNext");
    QVERIFY(dialog->isVisible());
    QCOMPARE(status->text(), "Found, but not visible");
    QCOMPARE(view().currentIndex(), view().model()->index(1, 1));
    trigger("actionFindNext");
    QCOMPARE(status->text(), "");
    trigger("actionFindPrevious");
    view().opened()->undo();
    QCOMPARE(status->text(), "");
    view().cmdHideColumn();
    trigger("actionFindNext");
    QCOMPARE(status->text(), "Found, but not visible");
    view().cmdUnhidecolumns();
    QCOMPARE(status->text(), "");
    text->setText("x");
    QVERIFY(!dialog->find(CellWalk::Direction::Forward));
    QCOMPARE(status->text(), "Not found");
    QCOMPARE(status->palette().color(QPalette::WindowText), QColor(Qt::red));

    // What was found belongs to its dataset.
    open("dm2");
    text->setText("0");
    trigger("actionFindPrevious");
    QCOMPARE(view().currentIndex(), view().model()->index(2, 1));
    trigger("actionCloseAll");
    QVERIFY(!dialog->find(CellWalk::Direction::Forward));
}

void TestNavigation::findSearchesAnyTable()
{
    QStandardItemModel model(70, 3);
    model.setItem(69, 1, new QStandardItem("\u00C4pfel"));
    model.setItem(3, 2, new QStandardItem("\u00E4pfel"));
    QTableView table;
    table.setModel(&model);
    FindDialog dialog;
    QVERIFY(!dialog.find(CellWalk::Direction::Forward));
    dialog.setView(&table);
    dialog.findChild<QLineEdit*>()->setText("\u00E4P");
    QVERIFY(dialog.find(CellWalk::Direction::Backward));
    QCOMPARE(table.currentIndex(), model.index(69, 1));
    QVERIFY(dialog.find(CellWalk::Direction::Backward));
    QCOMPARE(table.currentIndex(), model.index(3, 2));
}

void TestNavigation::quickOpenListsDatasetsAndVariables()
{
    QStandardItemModel tree;
    auto* library = new QStandardItem("Study");
    for (const auto& [text, path] : {std::pair("dm", "/s/dm.xpt"), {"/s/vs.xpt", "/s/vs.xpt"}}) {
        auto* item = new QStandardItem(text);
        item->setData(path, Qt::UserRole);
        library->appendRow(item);
    }
    tree.appendRow(library);
    tree.appendRow(new QStandardItem("Session"));
    QStandardItemModel grid(2000, 3);
    grid.setHorizontalHeaderLabels({"USUBJID", "AGE", "AGEU"});
    QuickOpenDialog palette(tree, &grid);
    palette.show();
    auto* text = palette.findChild<QLineEdit*>();
    const auto* list = palette.findChild<QListView*>();
    const auto listed = [&](const QString& typed) {
        text->setText(typed);
        QStringList entries;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            entries << list->model()->index(row, 0).data().toString();
        }
        return entries.join('|');
    };
    QCOMPARE(listed(""), "dm\t/s/dm.xpt|/s/vs.xpt|Session\t");
    QCOMPARE(listed("VS"), "/s/vs.xpt");
    QCOMPARE(listed(" V   age"), "AGE|AGEU");
    QCOMPARE(listed("col ^usub"), "USUBJID");
    QCOMPARE(listed("vs("), "");
    QVERIFY(!list->currentIndex().isValid());
    QCOMPARE(listed("variable"), "");

    QSignalSpy files(&palette, &QuickOpenDialog::fileChosen);
    QSignalSpy rows(&palette, &QuickOpenDialog::rowChosen);
    QSignalSpy columns(&palette, &QuickOpenDialog::columnChosen);
    const auto choose = [&](const QString& typed, Qt::Key key) {
        palette.show();
        text->setText(typed);
        QTest::keyClick(text, key);
        QTest::keyClick(text, Qt::Key_Return);
    };
    choose("d", Qt::Key_PageUp);
    choose("s/", Qt::Key_PageDown);
    QCOMPARE(files.value(0).value(0), QVariant("/s/dm.xpt"));
    QCOMPARE(files.value(1).value(0), QVariant("/s/vs.xpt"));
    choose("v age", Qt::Key_Down);
    QCOMPARE(columns.value(0).value(0), QVariant(2));
    choose("1234", Qt::Key_Up);
    QCOMPARE(rows.value(0).value(0), QVariant(1233));
    choose("2001", Qt::Key_Up);
    QVERIFY(palette.isVisible());
    choose("sess", Qt::Key_Up);  // which is no dataset
    QVERIFY(palette.isVisible());
    QCOMPARE(files.size() + rows.size() + columns.size(), 4);
}

void TestNavigation::quickOpenLeadsToCells()
{
    open("dm");
    submit("comboBoxDf", "if AGE > 30");
    const auto choose = [this](const QString& text) {
        trigger("actionQuickOpen");
        auto* palette = window->findChildren<QuickOpenDialog*>().last();
        palette->findChild<QLineEdit*>()->setText(text);
        QTest::keyClick(palette->findChild<QLineEdit*>(), Qt::Key_Return);
        return QString("%1 %2").arg(view().currentIndex().row()).arg(view().currentVariable());
    };
    QCOMPARE(choose("c age"), "1 1");
    QCOMPARE(choose("3"), "2 1");
    QCOMPARE(choose("1"), "2 1");
    QVERIFY(log->take().find("Observation 1 is hidden by a filter.") != std::string::npos);
}

void TestNavigation::variablesLeadBackToTheGrid()
{
    open("dm");
    view().run(GridCommand::GoToVariable);
    VariableTableView& variables = *view().panels().variables();
    QVERIFY(variables.hasFocus());
    QTest::keyClick(&variables, Qt::Key_Down);
    QTest::keyClick(&variables, Qt::Key_G);
    QVERIFY(view().hasFocus());
    QCOMPARE(view().currentVariable(), 1);
}

QTEST_MAIN(TestNavigation)
#include "TestNavigation.moc"
