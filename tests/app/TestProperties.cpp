#include "app/dialogs/DatasetPropertiesDialog.h"
#include "tests/support/RFiles.h"
#include "tests/support/WindowFixture.h"

#include <QClipboard>
#include <QFile>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>

/// What a file says of its dataset, or why it says nothing, as the window shows it.
class TestProperties : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void tellWhatTheFileSays();
    void areCopiedAndSaved();
    void stayWhenTheDatasetCloses();
    void framesOfRThatCannotBeReadAreNamed();

private:
    [[nodiscard]] DatasetPropertiesDialog* dialog() const
    {
        return window->findChild<DatasetPropertiesDialog*>();
    }
    void press(const QString& button) const
    {
        for (auto* each : dialog()->findChildren<QPushButton*>()) {
            if (each->text().remove('&') == button) {
                each->click();
            }
        }
    }
    [[nodiscard]] QStringList fields() const
    {
        QStringList lines;
        const auto* tree = dialog()->findChild<QTreeWidget*>();
        for (int section = 0; section < tree->topLevelItemCount(); ++section) {
            const QTreeWidgetItem* top = tree->topLevelItem(section);
            for (int i = 0; i < top->childCount(); ++i) {
                lines << top->child(i)->text(0) + '=' + top->child(i)->text(1);
            }
        }
        return lines;
    }
};

void TestProperties::tellWhatTheFileSays()
{
    QVERIFY(!child<QAction>("actionDatasetProperties")->isEnabled());
    open("worn");
    QTest::keyClick(&view(), Qt::Key_Return, Qt::AltModifier);
    QCOMPARE(dialog()->windowTitle(), "Properties of worn");
    const QStringList told = fields();
    QVERIFY(told.contains("Observations=3"));
    QVERIFY(told.contains("Variables=2"));
    QVERIFY(told.contains("File Name=" + path("worn")));
    QVERIFY(told.contains("May Be Damaged=Its end may be missing."));
    // What this kind of file does not know is left out.
    QVERIFY(told.filter("Deleted").isEmpty() && told.filter("Page").isEmpty());

    const auto* table = dialog()->findChild<QTableView*>();
    const QAbstractItemModel& shown = *table->model();
    QCOMPARE(shown.rowCount(), 2);
    QCOMPARE(shown.index(1, 1).data().toString(), "AGE");
    QCOMPARE(shown.index(1, 2).data().toString(), "Num");
    dialog()->findChild<QLineEdit*>()->setText("se");
    QCOMPARE(shown.rowCount(), 1);
    QCOMPARE(shown.index(0, 0).data().toInt(), 1);
}

void TestProperties::areCopiedAndSaved()
{
    fillOwn = [](ScriptedDataset& dataset) {
        for (int i = 0; i < 12; ++i) {
            dataset.variable("V" + std::to_string(i), TypeCode::Double, "Dose, \"planned\"");
        }
    };
    open("own");
    trigger("actionDatasetProperties");
    press("Copy");
    const QString text = QGuiApplication::clipboard()->text();
    QVERIFY(text.contains("\nEngine and File\n"));
    QVERIFY(text.contains("Dose, \"planned\""));

    // Numbers sort as numbers.
    auto* table = dialog()->findChild<QTableView*>();
    table->sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(table->model()->index(0, 0).data().toString(), "12");

    for (const auto& [name, expected] :
         {std::pair("a.txt", text),
          std::pair("a.csv", QString("4,V3,Num,8,,,\"Dose, \"\"planned\"\"\"\n"))}) {
        script.savePath = path(name);
        press("Save As...");
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(QString::fromUtf8(file.readAll()).contains(expected), name);
    }
    notes();
    script.savePath = path("none/a.txt");
    press("Save As...");
    QCOMPARE(notes().last().section('|', 0, 2),
             "warn|Save Properties|Failed to save the file: " + path("none/a.txt"));
}

void TestProperties::stayWhenTheDatasetCloses()
{
    open("dm");
    trigger("actionDatasetProperties");
    trigger("actionCloseAll");
    QVERIFY(dialog()->isVisible());
    dialog()->findChild<QLineEdit*>()->setText("age");
    QCOMPARE(dialog()->findChild<QTableView*>()->model()->rowCount(), 1);
    press("Close");
    QTRY_VERIFY(dialog() == nullptr);
}

void TestProperties::framesOfRThatCannotBeReadAreNamed()
{
    openWindow(true);
    const QString file = path("study.rda");
    const std::string bytes = rfiles::bytesOf(rfiles::workspace);
    QFile written(file);
    QVERIFY(written.open(QIODevice::WriteOnly)
            && written.write(bytes.data(), qint64(bytes.size())) > 0);
    written.close();
    script.chosenDatasets = {"ae"};
    QVERIFY(window->openDatasetFile(file));
    QVERIFY(written.remove());
    notes();
    trigger("actionReload");
    QCOMPARE(notes().first().section('|', 0, 2),
             "warn|Open R Data|Failed to open dataset 'ae' in " + file + ".");
}

QTEST_MAIN(TestProperties)
#include "TestProperties.moc"
