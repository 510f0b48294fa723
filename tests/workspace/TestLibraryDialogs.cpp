#include "tests/support/LogCapture.h"
#include "workspace/LibraryEditorDialog.h"
#include "workspace/LibraryRegistry.h"
#include "workspace/ManageLibrariesDialog.h"
#include "workspace/WorkspaceStore.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/// The dialogs of libraries over a real store, answered by the test.
class TestLibraryDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void editorGivesBackWhatIsEdited();
    void editorTakesNoFolderTwiceAndNoneAtAll();
    void listIsEditedAndWrittenWhenAccepted();
    void failureIsToldAndKeepsTheDialogOpen();

private:
    [[nodiscard]] LibraryPrompts prompts();
    [[nodiscard]] static QString shown(const ManageLibrariesDialog& dialog);
    [[nodiscard]] QStringList stored() const;
    static void click(const QWidget& dialog, const char* button)
    {
        dialog.findChild<QPushButton*>(button)->click();
    }
    /// Clicks a button and accepts the editor that it opens with that folder in it.
    static void edit(ManageLibrariesDialog& dialog, const char* button, const QString& dir);

    QStringList m_notes;
    QString m_folderChosen;
    QColor m_colorChosen;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<WorkspaceStore> m_store;
};

void TestLibraryDialogs::init()
{
    m_notes.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_store = std::make_unique<WorkspaceStore>(StoreLocations{m_folder->path(), {}});
    QVERIFY(m_store->initDatabase());
    for (const char* dir : {"/a", "/b", "/c"}) {
        QVERIFY(LibraryRegistry(*m_store).add(dir).ok());
    }
}

void TestLibraryDialogs::cleanup()
{
    m_store.reset();
    QCOMPARE(m_notes, QStringList());
}

LibraryPrompts TestLibraryDialogs::prompts()
{
    return {[this](const QString& title, const QString& text) { m_notes << title + '|' + text; },
            [this](const QString& title, const QString& folder) {
                m_notes << title + '|' + folder;
                return m_folderChosen;
            },
            [this](const QString& title, const QColor& color) {
                m_notes << title + '|' + color.name();
                return m_colorChosen;
            }};
}

QString TestLibraryDialogs::shown(const ManageLibrariesDialog& dialog)
{
    const auto* table = dialog.findChild<QTableWidget*>();
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        names << table->item(row, 0)->text() + (table->item(row, 0)->isSelected() ? "*" : "");
    }
    return names.join(' ');
}

QStringList TestLibraryDialogs::stored() const
{
    QStringList all;
    const auto loaded = LibraryRegistry(*m_store).load();
    for (const Library& library : loaded.value()) {
        all << QString("%1 %2").arg(library.dir).arg(library.sortOrder);
    }
    return all;
}

void TestLibraryDialogs::edit(ManageLibrariesDialog& dialog, const char* button, const QString& dir)
{
    QTimer::singleShot(0, &dialog, [&dialog, dir] {
        auto* editor = dialog.findChild<LibraryEditorDialog*>();
        editor->findChild<QLineEdit*>("directory")->setText(dir);
        editor->accept();
    });
    click(dialog, button);
}

void TestLibraryDialogs::editorGivesBackWhatIsEdited()
{
    const Library before{7, "/a", "LIBA", "A", "X = 1", true, false, "#ff0000", 3, "mark"};
    LibraryEditorDialog dialog(before, {}, prompts());
    QCOMPARE(dialog.windowTitle(), "Edit Library");
    QCOMPARE(dialog.library(), before);
    auto* color = dialog.findChild<QPushButton*>("chooseColor");
    QCOMPARE(color->styleSheet(), "background-color: #ff0000;");
    click(dialog, "browse");
    click(dialog, "chooseColor");  // both are cancelled
    QCOMPARE(dialog.library(), before);
    m_folderChosen = "/chosen/adam";
    m_colorChosen = QColor(1, 2, 3);
    click(dialog, "browse");
    click(dialog, "chooseColor");
    QCOMPARE(std::exchange(m_notes, {}),
             QStringList({"Select Directory|/a", "Select Color|#ff0000", "Select Directory|/a",
                          "Select Color|#ff0000"}));
    QCOMPARE(color->styleSheet(), "background-color: #010203;");
    dialog.findChild<QLineEdit*>("displayName")->setText("  ");
    dialog.findChild<QLineEdit*>("alias")->setText(" ADAM ");
    dialog.findChild<QLineEdit*>("filter")->setText("Y = 2");
    dialog.findChild<QAbstractButton*>("watches")->setChecked(false);
    dialog.findChild<QAbstractButton*>("opens")->setChecked(true);
    QCOMPARE(
        dialog.library(),
        (Library{7, "/chosen/adam", "ADAM", "adam", "Y = 2", false, true, "#010203", 3, "mark"}));
    click(dialog, "noColor");
    QCOMPARE(dialog.library().color, "");
    QCOMPARE(color->styleSheet(), "");
}

void TestLibraryDialogs::editorTakesNoFolderTwiceAndNoneAtAll()
{
    LibraryEditorDialog dialog(Library(), {"/a", "/b/"}, prompts());
    QCOMPARE(dialog.windowTitle(), "Add Library");
    const auto told = [&](const QString& dir) {
        dialog.findChild<QLineEdit*>("directory")->setText(dir);
        dialog.setResult(QDialog::Rejected);
        dialog.accept();
        return m_notes.isEmpty() ? QString::number(dialog.result()) : m_notes.takeFirst();
    };
    QCOMPARE(told("  "), "Invalid Input|Directory is required.");
    QCOMPARE(told("/x/../b"), "Duplicate|A library for this directory already exists.");
    QCOMPARE(told("/b/c"), QString::number(QDialog::Accepted));
}

void TestLibraryDialogs::listIsEditedAndWrittenWhenAccepted()
{
    const LibraryRegistry registry(*m_store);
    ManageLibrariesDialog dialog(registry, prompts());
    QVERIFY(dialog.load());
    QCOMPARE(shown(dialog), "a* b c");
    const auto isEnabled = [&](const char* name) {
        return dialog.findChild<QPushButton*>(name)->isEnabled();
    };
    QVERIFY(!isEnabled("moveUp") && isEnabled("moveDown"));
    click(dialog, "moveDown");
    QCOMPARE(shown(dialog), "b a* c");
    click(dialog, "moveDown");
    QVERIFY(isEnabled("moveUp") && !isEnabled("moveDown"));
    click(dialog, "moveUp");
    edit(dialog, "add", "/data/new");
    QCOMPARE(shown(dialog), "b a c new*");
    click(dialog, "moveUp");
    edit(dialog, "add", "/gone");
    click(dialog, "delete");
    QCOMPARE(shown(dialog), "b a new c*");
    dialog.findChild<QTableWidget*>()->selectRow(0);
    edit(dialog, "edit", "/b2");
    dialog.findChild<QTableWidget*>()->selectRow(1);
    click(dialog, "delete");
    QCOMPARE(shown(dialog), "b new* c");
    QCOMPARE(stored(), QStringList({"/a 0", "/b 1", "/c 2"}));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(stored(), QStringList({"/b2 0", "/data/new 1", "/c 2"}));
}

void TestLibraryDialogs::failureIsToldAndKeepsTheDialogOpen()
{
    const LibraryRegistry registry(*m_store);
    ManageLibrariesDialog dialog(registry, prompts());
    QVERIFY(dialog.load());
    click(dialog, "delete");
    QSqlQuery(m_store->database()).exec("PRAGMA query_only = ON");
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(m_notes.takeFirst().startsWith("Manage Libraries|Failed to delete library record: "));
    QSqlQuery(m_store->database()).exec("PRAGMA query_only = OFF");
    dialog.accept();
    QCOMPARE(stored(), QStringList({"/b 0", "/c 1"}));
    m_store->database().close();
    QVERIFY(!dialog.load());
    QCOMPARE(m_notes.takeFirst(), "Manage Libraries|Database connection is not available.");
}

QTEST_MAIN(TestLibraryDialogs)
#include "TestLibraryDialogs.moc"
