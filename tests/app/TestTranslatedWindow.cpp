#include "analysis/panels/FreqTableView.h"
#include "app/start/Translations.h"
#include "app/window/MainWindow.h"
#include "grid/GridContextMenu.h"
#include "grid/MainTableView.h"
#include "grid/opened/EngineMessages.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryServices.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMultiMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <algorithm>

/// The main window in the languages that come with the program.
class TestTranslatedWindow : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void noTextStaysEnglish_data();
    void noTextStaysEnglish();
    void keysAndEnginesSpeakTheLanguage();
    void mnemonicsAreDistinctAndLeaveTheGridItsKeys_data() { noTextStaysEnglish_data(); }
    void mnemonicsAreDistinctAndLeaveTheGridItsKeys();

private:
    void install(const QString& language);
    std::unique_ptr<QTranslator> m_translator;
};

namespace {

using Texts = QMultiMap<QString, QString>;

void add(Texts& texts, const QString& kind, const QObject& object, const QString& text)
{
    if (!text.isEmpty()) {
        texts.insert(kind + ' ' + object.objectName(), text);
    }
}

/// What stands on the parts of the window, by what they are; keys and icons are left out.
Texts visibleTexts(const QWidget& window)
{
    Texts texts;
    for (const QAction* action : window.findChildren<QAction*>()) {
        // Those of line edits and sub-windows come with Qt and its own translations.
        if (action->parent() == &window || qobject_cast<QDockWidget*>(action->parent()) != nullptr
            || action->menu() != nullptr) {
            add(texts, "action", *action, action->text());
            add(texts, "status tip", *action, action->statusTip());
        }
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        add(texts, "label", *label, label->text());
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        add(texts, "button", *button, button->text());
        if (qobject_cast<QTabBar*>(button->parent()) == nullptr) {  // whose tips are Qt's
            add(texts, "button's tip", *button, button->toolTip());
        }
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        add(texts, "title", *widget, widget->windowTitle());
        // A button in a dock's title or beside tabs is Qt's, too.
        const QObject* parent = widget->parent();
        if (qobject_cast<const QAbstractButton*>(widget) == nullptr
            || (qobject_cast<const QDockWidget*>(parent) == nullptr
                && qobject_cast<const QTabBar*>(parent) == nullptr)) {
            add(texts, "accessible name", *widget, widget->accessibleName());
        }
    }
    for (const QPlainTextEdit* edit : window.findChildren<QPlainTextEdit*>()) {
        add(texts, "placeholder", *edit, edit->placeholderText());
    }
    return texts;
}

/// The texts of a tree, headers included, without its second column, which holds keys.
QStringList cellTexts(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(parent); column += 2) {
        if (model.columnCount() > 1) {
            texts << model.headerData(column, Qt::Horizontal).toString();
        }
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, column, parent);
            const QString text = index.data().toString();
            texts << (text.isEmpty() ? QStringList() : QStringList(text))
                  << cellTexts(model, index);
        }
    }
    return texts;
}

/// Stands in for the readers: three rows; "bad" fails.
Result<OpenedDataset> load(const QString& file, const OpenOptions& /*options*/)
{
    if (file.contains("bad")) {
        return Failure{"The header is damaged."};
    }
    auto dataset = std::make_unique<ScriptedDataset>();
    dataset->variable("A", TypeCode::Double).variable("B", TypeCode::Double);
    dataset->rows(3, [](int row, int) { return ScriptedDataset::Value(double(row)); });
    OpenedDataset opened;
    opened.dataset = std::move(dataset);
    return opened;
}

std::unique_ptr<MainWindow> createWindow(const QTemporaryDir& folder,
                                         ScriptedPrompts::Script& script)
{
    MainWindowServices services = temporaryServices(folder.path(), script);
    services.load = load;
    return std::make_unique<MainWindow>(std::move(services));
}

/// What its user sees, at the start and with a dataset, in menus, trees, boxes and dialogs.
Texts textsOfASession()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedPrompts::Script script;
    const auto window = createWindow(folder, script);
    Texts texts = visibleTexts(*window);
    for (const QTreeView* tree : window->findChildren<QTreeView*>()) {
        for (const QString& text : cellTexts(*tree->model())) {
            add(texts, "cell", *tree, text);
        }
    }
    window->show();
    window->findChild<QAction*>("actionOpenSasData")->trigger();
    (void)window->openDatasetFile("/d/bad.xpt");
    (void)window->openDatasetFile("/d/ae.xpt");
    window->activeView()->cmdRunCommand("where A > 0");
    window->activeView()->cmdRunCommand("if B = 2");
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        add(texts, "label with a dataset", *label, label->text());
    }
    const GridContextMenu menu("USUBJID");
    for (const QAction* entry : menu.actions()) {
        add(texts, "entry", menu, entry->text());
    }
    for (const QString& note : script.notes) {
        for (const QString& part : note.split('|').mid(1)) {
            add(texts, "prompt", *window, part);
        }
    }
    return texts;
}

}  // namespace

void TestTranslatedWindow::cleanup()
{
    m_translator.reset();  // which takes itself out of the application
}

void TestTranslatedWindow::install(const QString& language)
{
    m_translator = translations::load({language}, ":/i18n/");
    QVERIFY(m_translator != nullptr);
    QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
}

void TestTranslatedWindow::noTextStaysEnglish_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("same");  // as it is in English
    QTest::newRow("German") << "de-DE"
                            << QStringList({"By: NA", "Code", "DF: NA", "DF: if B = 2", "Layout 1",
                                            "Layout 2", "Layout 3", "Layout 4", "Layouts", "Log",
                                            "Quorlane", "The header is damaged."});
    QTest::newRow("Chinese") << "zh-CN" << QStringList({"Quorlane", "The header is damaged."});
}

void TestTranslatedWindow::noTextStaysEnglish()
{
    QFETCH(QString, language);
    const Texts texts = textsOfASession();
    install(language);
    const Texts translated = textsOfASession();
    QCOMPARE(translated.keys(), texts.keys());

    QStringList same;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (translated.contains(text.key(), text.value())) {
            same << text.value();
        }
    }
    same.removeDuplicates();
    same.sort();
    QTEST(same, "same");
}

void TestTranslatedWindow::keysAndEnginesSpeakTheLanguage()
{
    install("de-DE");
    const auto toolkit = translations::loadToolkit(*m_translator);
    QVERIFY(toolkit != nullptr && QCoreApplication::installTranslator(toolkit.get()));
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedPrompts::Script script;
    const auto window = createWindow(folder, script);
    QVERIFY(window->findChild<QAction*>("actionClose")->text().endsWith("\tStrg+W"));
    QCOMPARE(gridcommands::entryOf(GridCommand::ShiftLeft).menuEntry().section('\t', 1),
             "Alt+Links");

    QVERIFY(window->openDatasetFile("/d/ae.xpt"));
    auto* box = window->findChild<QComboBox*>("comboBoxLf");
    box->setEditText("where A >");
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    const auto labels = window->findChildren<QLabel*>("failureMessage");
    QVERIFY(std::ranges::any_of(labels, [](auto* it) { return it->text() == "Wert erwartet"; }));
    QCOMPARE(enginemessages::translated("'01FOO'd is not a valid date"),
             "'01FOO'd ist kein gültiges Datum");
    QCOMPARE(enginemessages::translated("a: b.xpt: It has no data set named %2; it has A, B"),
             "a: b.xpt: Sie enthält kein Dataset namens %2, sondern A, B");
    QCOMPARE(enginemessages::translated("It has something else"), "It has something else");

    auto* grid = window->findChild<MainTableView*>();
    grid->cmdRunCommand("table A");
    grid->panels().frequency()->table().showContextMenu(QPoint());
    const auto entries = grid->panels().frequency()->findChild<QMenu*>()->actions();
    QVERIFY(std::ranges::any_of(entries, [](const QAction* it) {
        return !it->isEnabled() && it->text() == "A enthält Zahlen, in denen kein Text vorkommt\t";
    }));
}

void TestTranslatedWindow::mnemonicsAreDistinctAndLeaveTheGridItsKeys()
{
    QFETCH(QString, language);
    install(language);
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedPrompts::Script script;
    const auto window = createWindow(folder, script);
    QStringList texts;
    for (const QAction* menu : window->menuBar()->actions()) {
        texts << menu->text();
    }
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            texts << label->text();
        }
    }
    for (const QPushButton* button : window->findChildren<QPushButton*>()) {
        texts << (button->window() == window.get() ? QStringList(button->text()) : QStringList());
    }
    QStringList keys;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        QVERIFY2(!key.isEmpty(), qPrintable(text));
        QVERIFY2(!keys.contains(key), qPrintable(text + " has the key of another"));
        keys << key;
    }
    QVERIFY(keys.size() > window->menuBar()->actions().size());
    QVERIFY2(!keys.contains("Alt+H") && !keys.contains("Alt+C"), qPrintable(keys.join(' ')));
}

QTEST_MAIN(TestTranslatedWindow)
#include "TestTranslatedWindow.moc"
