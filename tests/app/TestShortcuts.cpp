#include "app/docks/ShortcutKeysWindow.h"
#include "app/docks/ShortcutList.h"

#include <QKeySequence>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

class TestShortcuts : public QObject
{
    Q_OBJECT

private slots:
    void keysAreWrittenAsThePlatformDoes_data();
    void keysAreWrittenAsThePlatformDoes();
    void everyRowIsComplete();
    void misspellingsAreKept();
    void undoIsTheLastFilterOfTheFrequencyWindow();
    void windowShowsEveryShortcutUnderItsHeading();
    void windowCannotBeEdited();
};

void TestShortcuts::keysAreWrittenAsThePlatformDoes_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("keys");
    const auto standard = [](QKeySequence::StandardKey key, const QString& otherwise) {
        const QKeySequence sequence(key);
        return sequence.isEmpty() ? otherwise : sequence.toString(QKeySequence::NativeText);
    };
    QTest::newRow("two keys") << "Quick Open"
                              << "Ctrl+P; Q";
    QTest::newRow("a key and a standard key") << "Dataset Filter, Undo"
                                              << "Z; " + standard(QKeySequence::Undo, "Ctrl+Z");
    QTest::newRow("standard key") << "Open SAS Datasets" << standard(QKeySequence::Open, "Ctrl+O");
    QTest::newRow("standard key that some platforms lack")
        << "Exit Application" << standard(QKeySequence::Quit, "Ctrl+Q");
    QTest::newRow("signs") << "Dataset Filter, Uneuqal"
                           << "^; ~";
    QTest::newRow("angle bracket") << "Dataset Filter, Less or Equal"
                                   << "Alt+<";
    QTest::newRow("arrow") << "Shift Variable Left"
                           << "Alt+Left";
    QTest::newRow("plus") << "Increase the Font Size"
                          << "Ctrl++";
    QTest::newRow("minus") << "Decrease the Font Size"
                           << "Ctrl+-";
    QTest::newRow("tabulator") << "Next Dataset Tab"
                               << "Ctrl+Tab";
}

void TestShortcuts::keysAreWrittenAsThePlatformDoes()
{
    QFETCH(QString, action);
    QFETCH(QString, keys);
    int found = 0;
    for (const Shortcut& shortcut : shortcutlist::all()) {
        if (shortcut.action == action) {
            QCOMPARE(shortcut.keys, keys);
            ++found;
        }
    }
    QVERIFY(found > 0);
}

void TestShortcuts::everyRowIsComplete()
{
    for (const Shortcut& shortcut : shortcutlist::all()) {
        QVERIFY2(!shortcut.action.isEmpty() && !shortcut.keys.isEmpty()
                     && !shortcut.description.isEmpty(),
                 qPrintable(shortcut.action));
        for (const QString& key : shortcut.keys.split("; ")) {
            // A key that Qt does not know is written as nothing or is no single key.
            const auto sequence = QKeySequence::fromString(key, QKeySequence::NativeText);
            QVERIFY2(sequence.count() == 1 && sequence[0].key() != Qt::Key_unknown,
                     qPrintable(shortcut.action + ": " + key));
        }
    }
}

void TestShortcuts::misspellingsAreKept()
{
    const QList<Shortcut> all = shortcutlist::all();
    QCOMPARE(std::ranges::count(all, "Dataset Filter, Uneuqal", &Shortcut::action), 2);
    QCOMPARE(std::ranges::count(all, "Close all the opened datasets", &Shortcut::description), 1);
    // No other description lacks its full stop but those of the layouts.
    const auto unstopped = std::ranges::count_if(all, [](const Shortcut& shortcut) {
        return !shortcut.description.endsWith('.') && !shortcut.action.startsWith("Layout");
    });
    QCOMPARE(unstopped, 1);
}

void TestShortcuts::undoIsTheLastFilterOfTheFrequencyWindow()
{
    QStringList frequency;
    QStringList dataset;
    for (const Shortcut& shortcut : shortcutlist::all()) {
        if (shortcut.context == ShortcutContext::FrequencyWindow) {
            frequency << shortcut.action;
        } else if (shortcut.context == ShortcutContext::DatasetWindow) {
            dataset << shortcut.action;
        }
    }
    QCOMPARE(frequency.last(), "Dataset Filter, Undo");
    QCOMPARE(dataset.indexOf("Dataset Filter, Undo"), 7);
    // But for that the filters stand in the same order.
    frequency.removeLast();
    dataset.removeAt(7);
    QCOMPARE(frequency, dataset.mid(0, frequency.size()));
}

void TestShortcuts::windowShowsEveryShortcutUnderItsHeading()
{
    const ShortcutKeysWindow window;
    QStringList headings;
    for (int top = 0; top < window.topLevelItemCount(); ++top) {
        const QTreeWidgetItem* heading = window.topLevelItem(top);
        QVERIFY(heading->isExpanded());
        headings << heading->text(0) + ' ' + QString::number(heading->childCount());
    }
    QCOMPARE(headings,
             QStringList(
                 {"Global 10", "Dataset Window 25", "Frequency Window 11", "Variables Window 1"}));
    const QTreeWidgetItem* row = window.topLevelItem(3)->child(0);
    QCOMPARE(row->text(0), "Go to Variable");
    QCOMPARE(row->text(1), "G");
    QCOMPARE(row->text(2), "Jump to the focused variable in Dataset Window.");
}

void TestShortcuts::windowCannotBeEdited()
{
    ShortcutKeysWindow window;
    window.show();
    window.setCurrentItem(window.topLevelItem(0)->child(0));
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete}) {
        QTest::keyClick(&window, key);
        QVERIFY(!window.isPersistentEditorOpen(window.currentIndex()));
        QVERIFY(window.findChildren<QLineEdit*>().isEmpty());
    }
    QVERIFY(!window.accessibleName().isEmpty());
}

QTEST_MAIN(TestShortcuts)
#include "TestShortcuts.moc"
