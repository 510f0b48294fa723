#include "app/start/Translations.h"
#include "app/window/MainWindow.h"
#include "grid/GridContextMenu.h"
#include "grid/MainTableView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryServices.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QMultiMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

/// The main window in the languages that come with the program.
class TestTranslatedWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void windowSpeaksTheLanguage_data();
    void windowSpeaksTheLanguage();
    void statusBarCountsInGerman();
    void promptsAreInGerman();
    void noTextStaysEnglish_data();
    void noTextStaysEnglish();
    void mnemonicsAreDistinctAndLeaveTheGridItsKeys_data();
    void mnemonicsAreDistinctAndLeaveTheGridItsKeys();

private:
    void install(const QString& language);
    [[nodiscard]] std::unique_ptr<MainWindow> createWindow();
    static Result<OpenedDataset> load(const QString& file);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    ScriptedPrompts::Script m_script;
    std::unique_ptr<QTranslator> m_translator;
};

namespace {

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << "de-DE";
    QTest::newRow("Chinese") << "zh-CN";
}

/// What stands on the parts of the window, by what they are; keys and icons are left out.
QMultiMap<QString, QString> visibleTexts(const QWidget& window)
{
    QMultiMap<QString, QString> texts;
    const auto add = [&texts](const QString& kind, const QObject* object, const QString& text) {
        if (!text.isEmpty()) {
            texts.insert(kind + ' ' + object->objectName(), text);
        }
    };
    for (const QAction* action : window.findChildren<QAction*>()) {
        // Those of line edits and sub-windows come with Qt and its own translations.
        if (action->parent() == &window || qobject_cast<QDockWidget*>(action->parent()) != nullptr
            || action->menu() != nullptr) {
            add("action", action, action->text());
            add("status tip", action, action->statusTip());
        }
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        add("label", label, label->text());
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        add("button", button, button->text());
        add("button's tip", button, button->toolTip());
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        add("title", widget, widget->windowTitle());
        // A button in a dock's title or beside tabs is Qt's, too.
        const QObject* parent = widget->parent();
        if (qobject_cast<const QAbstractButton*>(widget) == nullptr
            || (qobject_cast<const QDockWidget*>(parent) == nullptr
                && qobject_cast<const QTabBar*>(parent) == nullptr)) {
            add("accessible name", widget, widget->accessibleName());
        }
    }
    for (const QPlainTextEdit* edit : window.findChildren<QPlainTextEdit*>()) {
        add("placeholder", edit, edit->placeholderText());
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

QStringList treeTexts(const QWidget& window)
{
    QStringList texts;
    for (const QTreeView* tree : window.findChildren<QTreeView*>()) {
        texts << cellTexts(*tree->model());
    }
    return texts;
}

QString textOf(const QWidget& window, const char* action)
{
    const auto* found = window.findChild<QAction*>(action);
    return found == nullptr ? QStringLiteral("none") : found->text();
}

QString labelOf(const QWidget& window, const char* label)
{
    const auto* found = window.findChild<QLabel*>(label);
    return found == nullptr ? QStringLiteral("none") : found->text();
}

}  // namespace

void TestTranslatedWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_script = {};
}

void TestTranslatedWindow::cleanup()
{
    m_translator.reset();  // which takes itself out of the application
    const QString log = QString::fromStdString(m_log->take());
    m_log.reset();
    QVERIFY2(!log.contains("warning:") && !log.contains("error:"), qPrintable(log));
}

void TestTranslatedWindow::install(const QString& language)
{
    m_translator = translations::load({language}, ":/i18n/");
    QVERIFY(m_translator != nullptr);
    QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
}

std::unique_ptr<MainWindow> TestTranslatedWindow::createWindow()
{
    MainWindowServices services = temporaryServices(m_folder->path(), m_script);
    services.load = [](const QString& file, const OpenOptions&) { return load(file); };
    return std::make_unique<MainWindow>(std::move(services));
}

/// Stands in for the readers: three rows; "bad" fails.
Result<OpenedDataset> TestTranslatedWindow::load(const QString& file)
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

void TestTranslatedWindow::windowSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QStringList>("menus");
    QTest::addColumn<QStringList>("status");
    QTest::addColumn<QString>("frequency");
    QTest::newRow("German")
        << "de-DE"
        << QStringList({"SAS-Datensätze öffnen", "Schließen\tCtrl+W", "Nächster Datensatz-Tab",
                        "Dokumentation", "Layout 2"})
        << QStringList({"&Datei", "&Bearbeiten", "&Ansicht", "E&xtras", "A&usführen", "H&ilfe"})
        << QStringList({"Zeilen: NA/NA", "Var.: NA/NA", "By: NA", "BF: NA", "DF: NA"})
        << "Häufigkeiten";
    QTest::newRow("Chinese")
        << "zh-CN"
        << QStringList({"打开 SAS 数据集", "关闭\tCtrl+W", "下一个数据集标签页", "文档", "布局 2"})
        << QStringList({"文件(&F)", "编辑(&E)", "视图(&V)", "工具(&T)", "运行(&R)", "帮助(&P)"})
        << QStringList({"行：NA/NA", "变量：NA/NA", "By：NA", "库筛选：NA", "集筛选：NA"})
        << "频数";
}

void TestTranslatedWindow::windowSpeaksTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, frequency);
    install(language);
    const auto window = createWindow();

    QTEST(QStringList({textOf(*window, "actionOpenSasData"), textOf(*window, "actionClose"),
                       textOf(*window, "actionNextDataset"), textOf(*window, "actionDocumentation"),
                       textOf(*window, "actionLayout2")}),
          "actions");
    QStringList menus;
    for (const QAction* menu : window->menuBar()->actions()) {
        menus << menu->text();
    }
    QTEST(menus, "menus");
    QTEST(QStringList({labelOf(*window, "labelStatusBarRow"), labelOf(*window, "labelStatusBarVar"),
                       labelOf(*window, "labelStatusBarBy"), labelOf(*window, "labelStatusBarLf"),
                       labelOf(*window, "labelStatusBarDf")}),
          "status");
    QCOMPARE(window->findChild<QDockWidget*>("dockWidgetFreq")->windowTitle(), frequency);
    const GridContextMenu menu("USUBJID");
    QStringList entries;
    for (const QAction* entry : menu.actions()) {
        entries << entry->text();
    }
    QVERIFY2(entries.contains(frequency + "\tF"), qPrintable(entries.join('|')));
}

void TestTranslatedWindow::statusBarCountsInGerman()
{
    install("de-DE");
    const auto window = createWindow();
    window->show();
    QVERIFY(window->openDatasetFile(m_folder->filePath("ae.xpt")));
    QCOMPARE(labelOf(*window, "labelStatusBarRow"), "Zeilen: 3/3");
    QCOMPARE(labelOf(*window, "labelStatusBarVar"), "Var.: 2/2");

    window->activeView()->cmdRunCommand("where A > 0");
    window->activeView()->cmdRunCommand("if B = 2");
    QCOMPARE(labelOf(*window, "labelStatusBarRow"), "Zeilen: 1/3");
    QCOMPARE(labelOf(*window, "labelStatusBarLf"), "BF: where A > 0");
    QCOMPARE(labelOf(*window, "labelStatusBarDf"), "DF: if B = 2");
}

void TestTranslatedWindow::promptsAreInGerman()
{
    install("de-DE");
    const auto window = createWindow();
    const QString bad = m_folder->filePath("bad.xpt");
    QVERIFY(!window->openDatasetFile(bad));
    window->findChild<QAction*>("actionOpenSasData")->trigger();
    QCOMPARE(m_script.notes,
             QStringList({"warn|Datei öffnen|Die Datei konnte nicht geöffnet werden: " + bad
                              + "|The header is damaged.",
                          "files|SAS-Datensätze öffnen||SAS-Datensätze (*.sas7bdat);; "
                          "SAS-Transportdateien (*.xpt)"}));
}

void TestTranslatedWindow::noTextStaysEnglish_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("same");  // as it is in English
    QTest::newRow("German") << "de-DE"
                            << QStringList({"By: NA", "Code", "DF: NA", "Layout 1", "Layout 2",
                                            "Layout 3", "Layout 4", "Layouts", "Log", "Quorlane"});
    QTest::newRow("Chinese") << "zh-CN" << QStringList("Quorlane");
}

void TestTranslatedWindow::noTextStaysEnglish()
{
    QFETCH(QString, language);
    const auto english = createWindow();
    const auto texts = visibleTexts(*english);
    const QStringList cells = treeTexts(*english);
    install(language);
    const auto translated = createWindow();
    const auto translatedTexts = visibleTexts(*translated);
    const QStringList translatedCells = treeTexts(*translated);
    QCOMPARE(translatedTexts.keys(), texts.keys());
    QCOMPARE(translatedCells.size(), cells.size());

    QStringList same;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (translatedTexts.contains(text.key(), text.value())) {
            same << text.value();
        }
    }
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (cells[i] == translatedCells[i]) {
            same << cells[i];
        }
    }
    same.removeDuplicates();
    same.sort();
    QTEST(same, "same");
}

void TestTranslatedWindow::mnemonicsAreDistinctAndLeaveTheGridItsKeys_data()
{
    addLanguages();
}

void TestTranslatedWindow::mnemonicsAreDistinctAndLeaveTheGridItsKeys()
{
    QFETCH(QString, language);
    install(language);
    const auto window = createWindow();
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
        texts << button->text();
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
