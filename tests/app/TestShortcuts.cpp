#include "app/docks/ShortcutList.h"
#include "app/window/MainActions.h"

#include <QAction>
#include <QTest>

/// The list of shortcut keys against the keys that act.
class TestShortcuts : public QObject
{
    Q_OBJECT

private slots:
    void everyListedKeyActs();
};

void TestShortcuts::everyListedKeyActs()
{
    QObject owner;
    const MainActions actions(&owner);
    QStringList keysOfActions{"W"};  // of each dataset's window
    for (const QAction* action : owner.findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            keysOfActions << key.toString(QKeySequence::NativeText);
        }
    }
    int found = 0;
    for (const Shortcut& shortcut : shortcutlist::all()) {
        QVERIFY(!shortcut.action.isEmpty() && !shortcut.description.isEmpty());
        for (const QString& key : shortcut.keys.split("; ")) {
            const auto sequence = QKeySequence::fromString(key, QKeySequence::NativeText);
            QVERIFY2(sequence.count() == 1 && sequence[0].key() != Qt::Key_unknown,
                     qPrintable(shortcut.action + ": " + key));
            const bool isActions =
                shortcut.context == ShortcutContext::Global || shortcut.action.startsWith("Close");
            QVERIFY2(!isActions || keysOfActions.contains(key), qPrintable(key));
        }
        found += shortcut.action == "Quick Open" && shortcut.keys == "Ctrl+P; Q" ? 1 : 0;
        found += shortcut.action == "Dataset Filter, Undo" && shortcut.keys == "Z; Ctrl+Z" ? 1 : 0;
        found += shortcut.action == "Dataset Filter, Uneuqal" && shortcut.keys == "^; ~" ? 1 : 0;
        found += shortcut.action == "Increase the Font Size" && shortcut.keys == "Ctrl++" ? 1 : 0;
    }
    QCOMPARE(found, 6);  // those of the filters stand in two windows
}

QTEST_MAIN(TestShortcuts)
#include "TestShortcuts.moc"
